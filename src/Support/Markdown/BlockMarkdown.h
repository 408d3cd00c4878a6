#pragma once

#include "Models/Block.h"

#include <QFlags>

/// Blocks as Markdown and back. What is written here is read back as the same blocks, apart from their ids.
/// The text of a block is taken as the source of a line: signs within it, such as those of bold text or of a
/// link, are written and read as they stand.
namespace BlockMarkdown
{
/// What Markdown says and blocks can't.
enum class Loss {
    none = 0,
    /// Lists and quotes within others; their items stand one level up.
    nesting = 1,
    /// Headings below the third level became headings of the third.
    headingLevels = 2,
    /// Tables became code.
    tables = 4,
    /// HTML became code.
    html = 8,
};
Q_DECLARE_FLAGS(Losses, Loss)
Q_DECLARE_OPERATORS_FOR_FLAGS(Losses)

struct Reading {
    /// Without ids.
    QList<Block> blocks;
    Losses losses;
};

/// Ends in one line feed; empty for no blocks.
QString write(const QList<Block> &blocks);
/// Blank lines make no blocks. Any text can be read; line breaks may be of any kind.
Reading read(const QString &markdown);

/// The raw text of the language that a code block with this word after its fence has.
QString languageNamed(const QString &word);
} // namespace BlockMarkdown
