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

void OVTextMarks::setMarks(const TextMarkList &marks)
{
    if (m_marks == marks)
        return;
    m_marks = marks;
    emit looksChanged();
}

QList<QRectF> OVTextMarks::rectsOf(const TextMark &mark) const
{
    QList<QRectF> rects;
    for (const Line &line : linesOf(mark))
        rects.append(line.rect);
    return rects;
}

QList<OVTextMarks::Line> OVTextMarks::linesOf(const TextMark &mark) const
{
    QList<Line> lines;
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
            const qreal top = corner.y() + line.y();
            lines.append({QRectF(corner.x() + std::min(x1, x2), top, std::abs(x2 - x1),
                                 line.ascent() + line.descent()),
                          top + line.ascent()});
        }
    }
    return lines;
}

void OVTextMarks::drawUnderline(QPainter *painter, const Line &line) const
{
    constexpr qreal dot = 2;
    constexpr qreal step = 4;
    painter->setBrush(m_color);
    const qreal y = std::round(line.baseline) + dot;
    const int count = std::max(1, int((line.rect.width() - dot) / step) + 1);
    const qreal first = line.rect.center().x() - ((count - 1) * step + dot) / 2;
    for (int i = 0; i < count; ++i)
        painter->drawEllipse(QRectF(first + i * step, y, dot, dot));
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
        for (const Line &line : linesOf(*mark)) {
            if (m_shape == Shape::Underline) {
                drawUnderline(painter, line);
                continue;
            }
            painter->setBrush(mark->isCurrent ? m_currentColor : m_color);
            painter->drawRoundedRect(line.rect, 2, 2);
        }
    }
}
