#include "Features/Code/CodeLineNumbers.h"

#include "Features/Code/RowLayout.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>
#include <utility>

CodeLineNumbers::CodeLineNumbers(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &CodeLineNumbers::placeChanged, this, &QQuickItem::polish);
    connect(this, &CodeLineNumbers::looksChanged, this, &CodeLineNumbers::measure);
    connect(this, &CodeLineNumbers::looksChanged, this, [this] { update(); });
}

void CodeLineNumbers::setDocument(CodeEditorDocument *document)
{
    if (m_document == document)
        return;
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (m_document) {
        connect(m_document, &CodeEditorDocument::laidOut, this, &QQuickItem::polish);
        connect(m_document, &CodeEditorDocument::lineCountChanged, this, &CodeLineNumbers::measure);
        connect(m_document, &CodeEditorDocument::caretMoved, this, [this] { update(); });
    }
    measure();
    polish();
    emit documentChanged();
}

void CodeLineNumbers::measure()
{
    const int digits = std::max(2, int(QString::number(m_document ? m_document->lineCount() : 1).size()));
    const qreal digit = QFontMetricsF(m_font).horizontalAdvance(u'0');
    setImplicitWidth(std::ceil(digits * digit + 2 * m_margin));
}

void CodeLineNumbers::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    polish();
}

void CodeLineNumbers::updatePolish()
{
    if (!m_document || !m_document->textDocument())
        return;
    const RowLayout &layout = *RowLayout::of(m_document->textDocument());
    const int last = layout.lineAt(height() - m_documentTop);
    QList<Mark> marks;
    for (int line = layout.lineAt(-m_documentTop); line <= last; ++line)
        marks.append({line + 1, layout.baselineOf(line) + m_documentTop});
    if (std::exchange(m_marks, marks) != marks)
        update();
}

void CodeLineNumbers::paint(QPainter *painter)
{
    painter->setFont(m_font);
    const QFontMetricsF metrics(m_font);
    for (const Mark &mark : std::as_const(m_marks)) {
        const QString number = QString::number(mark.number);
        painter->setPen(m_document && mark.number == m_document->caretLine() ? m_caretColor : m_color);
        painter->drawText(QPointF(width() - m_margin - metrics.horizontalAdvance(number), mark.baseline),
                          number);
    }
}
