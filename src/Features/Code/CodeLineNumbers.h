#pragma once

#include "Features/Code/CodeEditorDocument.h"

#include <QColor>
#include <QQuickPaintedItem>

/// The numbers beside the lines of a code editor, drawn where the document has its lines. It is as wide as
/// the largest number asks for.
class CodeLineNumbers : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        CodeEditorDocument *document READ document WRITE setDocument NOTIFY documentChanged REQUIRED FINAL)
    /// Where the document begins in this item, in pixels.
    Q_PROPERTY(qreal documentTop MEMBER m_documentTop NOTIFY placeChanged FINAL)
    /// To the left and right of the numbers.
    Q_PROPERTY(qreal margin MEMBER m_margin NOTIFY looksChanged FINAL)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY looksChanged FINAL)
    /// Of the line that the caret is on.
    Q_PROPERTY(QColor caretColor MEMBER m_caretColor NOTIFY looksChanged FINAL)

public:
    explicit CodeLineNumbers(QQuickItem *parent = nullptr);

    CodeEditorDocument *document() const { return m_document; }
    void setDocument(CodeEditorDocument *document);

    void paint(QPainter *painter) override;

signals:
    void documentChanged();
    void placeChanged();
    void looksChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;

private:
    void measure();

    QPointer<CodeEditorDocument> m_document;
    qreal m_documentTop = 0;
    qreal m_margin = 0;
    QFont m_font;
    QColor m_color;
    QColor m_caretColor;
    struct Mark {
        /// From 1.
        int number = 0;
        qreal baseline = 0;

        bool operator==(const Mark &) const = default;
    };
    /// What is drawn, in the item's pixels.
    QList<Mark> m_marks;
};
