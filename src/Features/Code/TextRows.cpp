#include "Features/Code/TextRows.h"

#include "Features/Code/RowLayout.h"

#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

TextRows::TextRows(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &TextRows::placeChanged, this, &QQuickItem::polish);
    connect(this, &TextRows::looksChanged, this, [this] { update(); });
}

void TextRows::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    if (m_document) {
        RowLayout *const rows = RowLayout::of(m_document->textDocument());
        connect(rows, &RowLayout::update, this, &QQuickItem::polish);
        connect(rows, &RowLayout::documentSizeChanged, this, &TextRows::textSizeChanged);
        connect(rows, &RowLayout::documentSizeChanged, this, &TextRows::textWidthChanged,
                Qt::QueuedConnection);
        connect(rows, &RowLayout::corrected, this, &TextRows::tellCorrection);
        if (auto *const editor = qobject_cast<QQuickItem *>(m_document->parent()))
            editor->setFlag(QQuickItem::ItemHasContents, false);
    }
    emit documentChanged();
    emit textSizeChanged();
    emit textWidthChanged();
    polish();
}

qreal TextRows::textWidth() const
{
    return m_document ? layout()->documentSize().width() : 0;
}

qreal TextRows::textHeight() const
{
    return m_document ? layout()->documentSize().height() : 0;
}

void TextRows::paint(QPainter *painter)
{
    if (!m_document)
        return;
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(-m_origin, size());
    context.palette.setColor(QPalette::Text, m_color);
    if (m_selectionStart < m_selectionEnd) {
        QAbstractTextDocumentLayout::Selection selection;
        selection.cursor = QTextCursor(m_document->textDocument());
        selection.cursor.setPosition(m_selectionStart);
        selection.cursor.setPosition(m_selectionEnd, QTextCursor::KeepAnchor);
        selection.format.setBackground(m_selectionColor);
        selection.format.setForeground(m_selectedTextColor);
        context.selections.append(selection);
    }
    painter->translate(m_origin);
    layout()->draw(painter, context);
}

void TextRows::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    polish();
}

void TextRows::updatePolish()
{
    if (!m_document || height() <= 0)
        return;
    layout()->layOut(-m_origin.y(), height() - m_origin.y());
    update();
}

RowLayout *TextRows::layout() const
{
    return RowLayout::of(m_document->textDocument());
}

void TextRows::tellCorrection(int line, qreal distance)
{
    if (layout()->topOf(line) < -m_origin.y())
        emit shifted(distance);
}
