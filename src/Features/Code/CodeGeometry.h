#pragma once

#include <QList>

class QTextDocument;

/// Where the lines of a laid out text lie. A line is what line feeds make one; with wrapping it may be shown
/// on several.
namespace CodeGeometry
{
/// The number of a line and where its first shown line stands, in the document's pixels.
struct LineMark {
    /// From 1.
    int number = 0;
    qreal baseline = 0;

    bool operator==(const LineMark &) const = default;
};

/// The line, counted from 0, that a height in the document falls on; the nearest one beyond its ends.
int lineAt(const QTextDocument &document, qreal y);

/// The lines that a stretch of the document shows, from its top to its bottom.
QList<LineMark> lineMarks(const QTextDocument &document, qreal top, qreal bottom);
} // namespace CodeGeometry
