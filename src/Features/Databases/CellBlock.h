#pragma once

#include <QStringList>

/// Cells as programs hand them on through the clipboard: tabs between the cells of a row, a line a row,
/// quotation marks around a cell that holds one of these.
namespace CellBlock
{
/// The rows of the text; a line end at its end adds no row. None for an empty text.
QList<QStringList> parse(const QString &text);
QString format(const QList<QStringList> &rows);
} // namespace CellBlock
