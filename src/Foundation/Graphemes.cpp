#include "Foundation/Graphemes.h"

#include <QTextBoundaryFinder>

qsizetype Graphemes::count(const QString &text)
{
    qsizetype count = 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

QString Graphemes::left(const QString &text, qsizetype most)
{
    // No grapheme is shorter than a unit, so a short text needs no counting.
    if (text.size() <= most)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype count = 0; count < most && finder.toNextBoundary() >= 0;)
        ++count;
    return finder.position() < 0 ? text : text.left(finder.position());
}
