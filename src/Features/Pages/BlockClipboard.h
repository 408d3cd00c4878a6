#pragma once

#include "Models/Block.h"

#include <QMimeData>

#include <memory>

/// What blocks are on the clipboard, and what the clipboard says in blocks.
namespace BlockClipboard
{
/// The blocks as Markdown, HTML and plain text, and with them nothing that stays theirs, such as ids.
std::unique_ptr<QMimeData> dataOf(const QList<Block> &blocks);

/// What can be read elsewhere than on the window's thread, which alone may ask the clipboard.
struct Texts {
    QString markdown;
    QString html;
    QString plain;

    static Texts of(const QMimeData &data);
    qsizetype size() const { return markdown.size() + html.size() + plain.size(); }
};
/// The blocks that the texts name, without ids; none if they are only lines of text, which any field takes.
QList<Block> blocksIn(const Texts &texts);
/// A paragraph for each line that is not blank.
QList<Block> linesIn(const QString &text);
} // namespace BlockClipboard
