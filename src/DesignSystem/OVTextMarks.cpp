#include "DesignSystem/OVTextMarks.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

OVTextMarks::OVTextMarks(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &OVTextMarks::looksChanged, this, [this] { update(); });
}

void OVTextMarks::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    if (m_document)
        m_document->textDocument()->documentLayout()->disconnect(this);
    m_document = document;
    if (m_document) {
        const auto *const layout = m_document->textDocument()->documentLayout();
        connect(layout, &QAbstractTextDocumentLayout::update, this, [this] { update(); });
        connect(layout, &QAbstractTextDocumentLayout::documentSizeChanged, this, [this] { update(); });
    }
    emit documentChanged();
    update();
}

QList<QRectF> OVTextMarks::rectsOf(const TextMark &mark) const
{
    QList<QRectF> rects;
    const QTextDocument *const document = m_document->textDocument();
    const int end = std::min(mark.start + mark.length, document->characterCount() - 1);
    for (QTextBlock block = document->findBlock(mark.start); block.isValid() && block.position() < end;
         block = block.next()) {
        const QPointF corner = document->documentLayout()->blockBoundingRect(block).topLeft() + m_origin;
        const QTextLayout &layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            const int from = std::max(mark.start - block.position(), line.textStart());
            const int to = std::min(end - block.position(), line.textStart() + line.textLength());
            if (from >= to)
                continue;
            const qreal x1 = line.cursorToX(from);
            const qreal x2 = line.cursorToX(to);
            rects.append(QRectF(corner.x() + std::min(x1, x2), corner.y() + line.y(), std::abs(x2 - x1),
                                line.ascent() + line.descent()));
        }
    }
    return rects;
}

void OVTextMarks::paint(QPainter *painter)
{
    if (!m_document || m_marks.marks.isEmpty())
        return;
    const QTextDocument *const document = m_document->textDocument();
    const auto positionAt = [&](const QPointF &point) {
        return document->documentLayout()->hitTest(point - m_origin, Qt::FuzzyHit);
    };
    const int first = document->findBlock(std::max(0, positionAt({0, 0}))).position();
    const int last = positionAt({width(), height()});
    // A match may begin above what is seen of it.
    auto mark = std::ranges::lower_bound(m_marks.marks, first, {},
                                         [](const TextMark &each) { return each.start + each.length; });
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    for (; mark != m_marks.marks.end() && mark->start <= last; ++mark) {
        for (const QRectF &rect : rectsOf(*mark)) {
            painter->setBrush(mark->isCurrent ? m_currentColor : m_color);
            painter->drawRoundedRect(rect, 2, 2);
        }
    }
}
