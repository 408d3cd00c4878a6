#pragma once

#include "Features/Decks/SlideStyle.h"

#include <memory>
#include <vector>

class QPainter;
class QTextLayout;

/// The text of a region, laid out on the reference canvas. Where it is too long for its rectangle, a region
/// with the mark is scaled down, to 40 percent at least; what still does not fit ends in an ellipsis at the
/// last whole line.
///
/// Positions count UTF-16 units in the texts of the region's lines, joined by line feeds.
class SlideText
{
public:
    enum class Extent {
        fitting,
        /// While it is edited: nothing is left out, and what does not fit is scrolled.
        whole
    };

    explicit SlideText(const SlideRegion &region, Extent extent = Extent::fitting);
    ~SlideText();
    SlideText(SlideText &&) noexcept;
    SlideText &operator=(SlideText &&) noexcept;

    /// Draws with the painter's units being those of the reference canvas.
    void paint(QPainter &painter, const QColor &markerColor) const;

    /// Whether all of it is shown.
    bool fits() const { return m_fits; }
    /// What the sizes of the region are multiplied by.
    double scale() const { return m_scale; }

    /// A visual line, without its marker.
    struct PlacedLine {
        QString text;
        QRectF rect;
    };
    QList<PlacedLine> placedLines() const;

    /// Of no width, and as high as the line.
    QRectF caretRect(int position) const;
    int positionAt(QPointF point) const;
    /// The position so many lines further down that is nearest to x; -1 beyond the first and the last line.
    int positionInLine(int position, int lines, double x) const;
    int lineStart(int position) const;
    int lineEnd(int position) const;
    /// What is to be marked where this part of the text is selected.
    QList<QRectF> rects(int from, int to) const;
    /// Brings the line of the position into the rectangle.
    void scrollTo(int position);

private:
    struct Paragraph;
    struct VisualLine {
        const Paragraph *paragraph = nullptr;
        int line = 0;
    };

    bool layOut(double scale, bool isWhole);
    void shrink();
    Paragraph prepared(qsizetype index) const;
    bool placeLines(Paragraph &paragraph, double &height, bool isWhole);
    void endWithEllipsis();
    void anchor(double height);
    double lineHeight() const;
    double linePitch() const { return lineHeight() + m_region.leading; }
    double limit() const;
    double blankIndent() const;

    QPointF toText(QPointF point) const;
    QRectF toCanvas(const QRectF &rect) const;
    QList<VisualLine> visualLines() const;
    qsizetype lineOf(int position) const;
    int positionOnLine(const VisualLine &line, double x) const;

    SlideRegion m_region;
    std::vector<Paragraph> m_paragraphs;
    /// How many of them the last layout has placed.
    std::ptrdiff_t m_placedCount = 0;
    double m_scale = 1;
    double m_offset = 0;
    bool m_fits = true;
    bool m_isWhole = false;
    double m_scroll = 0;
};
