#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QQuickTextDocument>

/// A stretch of a text that is marked, in UTF-16 units.
struct TextMark {
    int start = 0;
    int length = 0;
    /// Whether it is the one that the user is at.
    bool isCurrent = false;

    bool operator==(const TextMark &) const = default;
};

/// Marks in a text, in their order.
struct TextMarkList {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(int count READ count FINAL)

public:
    QList<TextMark> marks;

    int count() const { return int(marks.size()); }

    bool operator==(const TextMarkList &) const = default;
};

/// Draws marks behind or below the text of a TextEdit, without touching the text or its layout. Of
/// a long text only what is in view costs anything.
class OVTextMarks : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The `textDocument` of a TextEdit.
    Q_PROPERTY(
        QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged REQUIRED FINAL)
    /// Where the text begins in this item, in pixels.
    Q_PROPERTY(QPointF origin MEMBER m_origin NOTIFY looksChanged FINAL)
    Q_PROPERTY(TextMarkList marks READ marks WRITE setMarks NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY looksChanged FINAL)
    /// Behind the mark that the user is at.
    Q_PROPERTY(QColor currentColor MEMBER m_currentColor NOTIFY looksChanged FINAL)

public:
    /// How a mark is drawn: behind its words, or as a row of dots below them.
    enum class Shape { Box, Underline };

    explicit OVTextMarks(QQuickItem *parent = nullptr);

    const TextMarkList &marks() const { return m_marks; }
    void setMarks(const TextMarkList &marks);
    void setShape(Shape shape) { m_shape = shape; }

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);

    /// What a mark covers on each line that it stands on, in the coordinates of this item.
    QList<QRectF> rectsOf(const TextMark &mark) const;

    void paint(QPainter *painter) override;

signals:
    void documentChanged();
    void looksChanged();

private:
    struct Line {
        QRectF rect;
        /// Below which the letters hang.
        qreal baseline = 0;
    };
    QList<Line> linesOf(const TextMark &mark) const;
    void drawUnderline(QPainter *painter, const Line &line) const;

    Shape m_shape = Shape::Box;
    QPointer<QQuickTextDocument> m_document;
    QPointF m_origin;
    TextMarkList m_marks;
    QColor m_color;
    QColor m_currentColor;
};
