#pragma once

#include <QList>
#include <QStringView>

/// The words of a text that can be misspelt.
namespace SpellingWords
{
struct Word {
    int begin = 0;
    int end = 0;

    bool operator==(const Word &) const = default;
};

/// In their order. What is no prose is left out: addresses, paths, code between backquotes, names of programs
/// and files, numbers and abbreviations in capitals.
QList<Word> in(const QString &text);
} // namespace SpellingWords
