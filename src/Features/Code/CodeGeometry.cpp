#include "Features/Code/CodeGeometry.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

int CodeGeometry::lineAt(const QTextDocument &document, qreal y)
{
    const QAbstractTextDocumentLayout &layout = *document.documentLayout();
    int first = 0, last = document.blockCount() - 1;
    while (first < last) {
        const int middle = (first + last + 1) / 2;
        if (layout.blockBoundingRect(document.findBlockByNumber(middle)).top() <= y)
            first = middle;
        else
            last = middle - 1;
    }
    return first;
}

QList<CodeGeometry::LineMark> CodeGeometry::lineMarks(const QTextDocument &document, qreal top, qreal bottom)
{
    QList<LineMark> marks;
    const QAbstractTextDocumentLayout &layout = *document.documentLayout();
    int number = lineAt(document, top) + 1;
    for (QTextBlock block = document.findBlockByNumber(number - 1); block.isValid();
         block = block.next(), ++number) {
        const qreal blockTop = layout.blockBoundingRect(block).top();
        if (blockTop > bottom)
            break;
        if (block.layout()->lineCount() == 0)
            continue;
        const QTextLine line = block.layout()->lineAt(0);
        marks.append({number, blockTop + line.y() + line.ascent()});
    }
    return marks;
}
