#pragma once

#include "Models/CodeLanguage.h"

#include <QList>
#include <QStringView>

enum class CodeTokenKind { keyword, typeName, string, comment, number };

/// A coloured stretch of a source text, in UTF-16 units.
struct CodeToken {
    qsizetype location = 0;
    qsizetype length = 0;
    CodeTokenKind kind = CodeTokenKind::keyword;

    bool operator==(const CodeToken &) const = default;
};

/// Finds what is worth colouring in a source text: comments, strings, numbers, keywords and type names. One
/// pass from left to right, where the first construct wins; it knows no grammar.
namespace CodeSyntax
{
/// The construct that is still open where a piece of text ends.
struct Open {
    enum class Construct : quint8 { none, blockComment, tripleQuotes, quote };
    Construct construct = Construct::none;
    /// The quote that closes it.
    char16_t quote = 0;

    bool operator==(const Open &) const = default;
};

/// The tokens of a whole text, in order, never overlapping. "plain" has none.
QList<CodeToken> tokens(QStringView text, CodeLanguage language);

/// The tokens of one line, given what the lines before it have left open, and what it leaves open itself.
/// Line by line this gives what `tokens` gives for the whole text, a token over several lines being cut at
/// the line ends.
/// @param line without its line feed
/// @param endsInLineFeed whether one follows
Open scanLine(QStringView line, bool endsInLineFeed, Open open, CodeLanguage language,
              QList<CodeToken> &found);

/// Whether strings of the language begin and end with this unit.
bool isQuote(char16_t unit, CodeLanguage language);
} // namespace CodeSyntax
