#pragma once

#include "Models/Block.h"

/// Blocks as HTML and HTML as blocks, for the clipboard. Only structure is kept.
namespace BlockHtml
{
QString write(const QList<Block> &blocks);
/// Without ids. Nothing that the HTML names is loaded.
QList<Block> read(const QString &html);
} // namespace BlockHtml
