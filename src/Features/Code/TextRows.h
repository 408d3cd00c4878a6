#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QQuickTextDocument>

class RowLayout;

/// Draws the part of a long text that is in view, in the place of the TextEdit that the text belongs to: that
/// one takes the keys and the pointer, but leaves lines out when it draws a text that is longer than the
/// view.
class TextRows : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The `textDocument` of a TextEdit, which from then on draws nothing but its cursor.
    Q_PROPERTY(
        QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged REQUIRED FINAL)
    /// Where the text begins in this item, in pixels.
    Q_PROPERTY(QPointF origin MEMBER m_origin NOTIFY placeChanged FINAL)
    Q_PROPERTY(int selectionStart MEMBER m_selectionStart NOTIFY looksChanged FINAL)
    Q_PROPERTY(int selectionEnd MEMBER m_selectionEnd NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor selectedTextColor MEMBER m_selectedTextColor NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor selectionColor MEMBER m_selectionColor NOTIFY looksChanged FINAL)
    /// Of the whole text. It is only known by and by, as the text comes into view.
    Q_PROPERTY(qreal textWidth READ textWidth NOTIFY textWidthChanged FINAL)
    Q_PROPERTY(qreal textHeight READ textHeight NOTIFY textSizeChanged FINAL)

public:
    explicit TextRows(QQuickItem *parent = nullptr);

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    qreal textWidth() const;
    qreal textHeight() const;

    void paint(QPainter *painter) override;

signals:
    void documentChanged();
    void placeChanged();
    void looksChanged();
    void textSizeChanged();
    /// Told in the next turn, since the width of the editor, which follows it, lays the text out.
    void textWidthChanged();
    /// Text above the view has turned out longer by so many pixels than was estimated.
    void shifted(qreal distance);

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;

private:
    RowLayout *layout() const;
    void tellCorrection(int line, qreal distance);

    QPointer<QQuickTextDocument> m_document;
    QPointF m_origin;
    int m_selectionStart = 0;
    int m_selectionEnd = 0;
    QColor m_color;
    QColor m_selectedTextColor;
    QColor m_selectionColor;
};
