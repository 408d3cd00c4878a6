#pragma once

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>

#include <vector>

/// Lays out a long plain text in rows of one height. A line is laid out when it is asked for, which is when
/// it comes into view; until then its rows are estimated. So a text costs what is seen of it, however long it
/// is.
class RowLayout : public QAbstractTextDocumentLayout
{
    Q_OBJECT

public:
    /// Pixels between two rows, besides what the font asks for.
    static constexpr int rowSpacing = 3;

    /// The layout of the document, which gets one if it has another kind.
    static RowLayout *of(QTextDocument *document);

    /// Lays out what a stretch of the document shows, in its pixels, and forgets what is far from it.
    void layOut(qreal top, qreal bottom);

    /// The line, counted from 0, that a height in the document falls on; the nearest one beyond its ends.
    int lineAt(qreal y) const;
    /// Where the first row of a line stands.
    qreal baselineOf(int line) const;
    qreal topOf(int line) const;
    qreal rowHeight() const { return m_rowHeight; }
    /// Of a very long line it tells how far it has to be laid out.
    void setCaret(int position) { m_caret = position; }

    /// Draws the lines that are laid out within the clip of the context.
    void draw(QPainter *painter, const PaintContext &context) override;
    int hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame *frame) const override;
    QRectF blockBoundingRect(const QTextBlock &block) const override;

signals:
    /// A line that was laid out has other rows than was estimated; what follows moves by so many pixels.
    void corrected(int line, qreal distance);

protected:
    void documentChanged(int from, int removed, int added) override;

private:
    explicit RowLayout(QTextDocument *document);

    bool wraps() const;
    void measure();
    int estimatedRows(const QTextBlock &block);
    qreal widthOf(const QTextBlock &block) const;
    /// @param lastRow of its rows that is wanted; counts for a very long line alone
    void layOutBlock(const QTextBlock &block, int lastRow) const;
    void release(const QTextBlock &block);
    void tellSize();

    /// How many rows lie before the line.
    qint64 rowsBefore(int line) const;
    void setRows(int line, int rows);

    int m_caret = 0;
    qreal m_rowHeight = 1;
    qreal m_ascent = 0;
    qreal m_columnWidth = 1;
    /// Of the widest line, without wrapping.
    qreal m_textWidth = 0;
    QSizeF m_toldSize;
    /// Of each line.
    std::vector<int> m_rows;
    /// The rows before every so many lines, as far as they are known.
    mutable std::vector<qint64> m_sums;
    QList<QTextBlock> m_laidOut;
};
