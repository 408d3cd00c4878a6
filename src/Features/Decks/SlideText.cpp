#include "Features/Decks/SlideText.h"

#include "Features/Decks/PdfText.h"
#include "Features/Decks/SlideFont.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace
{
/// Height of a line without its leading, as a share of the font size; presentation programs use the same.
constexpr double lineHeightFactor = 1.2;
constexpr double markerGapFactor = 0.22;
constexpr int smallestPercent = 40;
/// More than fits into any region at the smallest scale.
constexpr qsizetype maxShownLength = 8000;

double markerIndent(const SlideRegion &region, const QString &marker)
{
    return QFontMetricsF(SlideFont::ofMarkers(region)).horizontalAdvance(marker) +
           region.size * markerGapFactor;
}
} // namespace

/// A line of the region with its marker, laid out in units of the unscaled font.
struct SlideText::Paragraph {
    QString marker;
    SlideStyle::ShownText shown;
    std::unique_ptr<QTextLayout> layout;
    /// Position of its first character in the whole text.
    int first = 0;
    double indent = 0;
    double top = 0;
    /// How many of its lines are shown.
    int lineCount = 0;
};

SlideText::~SlideText() = default;
SlideText::SlideText(SlideText &&) noexcept = default;
SlideText &SlideText::operator=(SlideText &&) noexcept = default;

SlideText::SlideText(const SlideRegion &region, Extent extent)
    : m_region(region), m_isWhole(extent == Extent::whole)
{
    if (m_isWhole && m_region.lines.isEmpty())
        m_region.lines.append(SlideRegion::Line());
    m_fits = layOut(1, m_isWhole);
    if (!m_fits && m_region.fit)
        shrink();
    m_paragraphs.erase(m_paragraphs.begin() + m_placedCount, m_paragraphs.end());
    if (!m_fits && !m_isWhole)
        endWithEllipsis();
}

void SlideText::shrink()
{
    int percent = smallestPercent;
    for (int above = 100; percent + 1 < above;) {
        const int middle = (percent + above) / 2;
        (layOut(middle / 100.0, false) ? percent : above) = middle;
    }
    m_fits = layOut(percent / 100.0, m_isWhole);
}

double SlideText::lineHeight() const
{
    return m_region.size * lineHeightFactor;
}

double SlideText::limit() const
{
    return (m_region.rect.height() + 0.5) / m_scale;
}

/// Blank lines stand where a text typed there would.
double SlideText::blankIndent() const
{
    const auto marked =
        std::ranges::find_if(m_region.lines, [](const auto &line) { return !line.marker.isEmpty(); });
    return marked == m_region.lines.end() ? 0 : markerIndent(m_region, marked->marker);
}

/// Gives false if it does not fit; then no more is laid out than shows that, unless it is to be whole. What
/// has been shaped for another scale is kept.
bool SlideText::layOut(double scale, bool isWhole)
{
    m_scale = scale;
    m_placedCount = 0;
    double height = 0;
    bool fits = true;
    for (qsizetype i = 0; i < m_region.lines.size() && (fits || isWhole); ++i) {
        if (std::size_t(i) == m_paragraphs.size())
            m_paragraphs.push_back(prepared(i));
        fits = placeLines(m_paragraphs[std::size_t(i)], height, isWhole) && fits;
        ++m_placedCount;
    }
    anchor(height);
    return fits;
}

SlideText::Paragraph SlideText::prepared(qsizetype index) const
{
    const SlideRegion::Line &line = m_region.lines[index];
    Paragraph paragraph;
    paragraph.marker = line.marker;
    if (index > 0)
        paragraph.first = m_paragraphs.back().first + int(m_region.lines[index - 1].text.size()) + 1;
    paragraph.indent = line.marker.isEmpty() ? blankIndent() : markerIndent(m_region, line.marker);
    paragraph.shown =
        SlideStyle::shown(m_isWhole ? line.text : line.text.left(maxShownLength), m_region.uppercase);
    paragraph.layout = std::make_unique<QTextLayout>();
    SlideFont::setText(*paragraph.layout, paragraph.shown.text, m_region);
    return paragraph;
}

bool SlideText::placeLines(Paragraph &paragraph, double &height, bool isWhole)
{
    paragraph.top = height;
    paragraph.lineCount = 0;
    const double width = m_region.rect.width() / m_scale - paragraph.indent;
    bool fits = true;
    paragraph.layout->beginLayout();
    for (QTextLine line = paragraph.layout->createLine(); line.isValid();
         line = paragraph.layout->createLine()) {
        line.setLineWidth(width);
        // Centred within the line's height, whatever the ascent and descent of the family.
        line.setPosition({0, height - paragraph.top + (lineHeight() - line.ascent() - line.descent()) / 2});
        // One line always shows.
        fits = fits && (height == 0 || height + lineHeight() <= limit());
        if (!fits && !isWhole)
            break;
        height += linePitch();
        ++paragraph.lineCount;
    }
    paragraph.layout->endLayout();
    return fits;
}

void SlideText::anchor(double height)
{
    m_offset = 0;
    if (m_region.anchor == SlideRegion::Anchor::center)
        m_offset = std::max(0.0, (m_region.rect.height() / m_scale - (height - m_region.leading)) / 2);
}

void SlideText::endWithEllipsis()
{
    if (m_paragraphs.back().lineCount == 0 && m_paragraphs.size() > 1)
        m_paragraphs.pop_back();
    Paragraph &last = m_paragraphs.back();
    const QTextLine line = last.layout->lineAt(last.lineCount - 1);
    const QString before = last.shown.text.left(line.textStart());
    const QString ended =
        SlideFont::endedLine(last.shown.text.mid(line.textStart(), line.textLength()),
                             SlideFont::of(m_region), m_region.rect.width() / m_scale - last.indent);
    SlideFont::setText(*last.layout, before + ended, m_region);
    double height = last.top;
    placeLines(last, height, true);
    anchor(height);
}

void SlideText::paint(QPainter &painter, const QColor &markerColor) const
{
    painter.save();
    const QRectF &rect = m_region.rect;
    if (m_isWhole && !m_fits) {
        // As many whole lines as there is room for, and the overhang of their letters at the sides.
        const double count = std::max(1.0, std::floor((limit() + m_region.leading) / linePitch()));
        painter.setClipRect(QRectF(0, rect.top(), rect.right() + rect.left(), count * linePitch() * m_scale),
                            Qt::IntersectClip);
    }
    painter.translate(rect.topLeft());
    painter.scale(m_scale, m_scale);
    painter.translate(0, m_offset - m_scroll);
    const QPen pen = painter.pen();
    for (const Paragraph &paragraph : m_paragraphs) {
        painter.setPen(pen);
        const QPointF place(paragraph.indent, paragraph.top);
        if (painter.paintEngine()->type() == QPaintEngine::Pdf)
            PdfText::paint(painter, *paragraph.layout, place);
        else
            paragraph.layout->draw(&painter, place);
        if (paragraph.marker.isEmpty() || paragraph.lineCount == 0)
            continue;
        const QTextLine first = paragraph.layout->lineAt(0);
        painter.setFont(SlideFont::ofMarkers(m_region));
        painter.setPen(markerColor);
        painter.drawText(QPointF(0, paragraph.top + first.y() + first.ascent()), paragraph.marker);
    }
    painter.restore();
}

QList<SlideText::PlacedLine> SlideText::placedLines() const
{
    QList<PlacedLine> placed;
    for (const VisualLine &visual : visualLines()) {
        const QTextLine line = visual.paragraph->layout->lineAt(visual.line);
        placed.append(
            {visual.paragraph->layout->text().mid(line.textStart(), line.textLength()),
             toCanvas(line.naturalTextRect().translated(visual.paragraph->indent, visual.paragraph->top))});
    }
    return placed;
}

QPointF SlideText::toText(QPointF point) const
{
    return (point - m_region.rect.topLeft()) / m_scale - QPointF(0, m_offset - m_scroll);
}

QRectF SlideText::toCanvas(const QRectF &rect) const
{
    return {m_region.rect.topLeft() + (rect.topLeft() + QPointF(0, m_offset - m_scroll)) * m_scale,
            rect.size() * m_scale};
}

QList<SlideText::VisualLine> SlideText::visualLines() const
{
    QList<VisualLine> lines;
    for (const Paragraph &paragraph : m_paragraphs)
        for (int line = 0; line < paragraph.lineCount; ++line)
            lines.append({&paragraph, line});
    return lines;
}

qsizetype SlideText::lineOf(int position) const
{
    qsizetype index = 0;
    for (const Paragraph &paragraph : m_paragraphs) {
        const int last = paragraph.first + int(paragraph.shown.positions.size()) - 1;
        if (position <= last || &paragraph == &m_paragraphs.back()) {
            const int shown =
                paragraph.shown.positions[std::clamp(position, paragraph.first, last) - paragraph.first];
            const QTextLine line = paragraph.layout->lineForTextPosition(shown);
            return index + (line.isValid() ? line.lineNumber() : paragraph.lineCount - 1);
        }
        index += paragraph.lineCount;
    }
    return 0;
}

int SlideText::positionOnLine(const VisualLine &visual, double x) const
{
    const Paragraph &paragraph = *visual.paragraph;
    const QTextLine line = paragraph.layout->lineAt(visual.line);
    int shown = line.xToCursor(x - paragraph.indent);
    // Behind the last character of a line that goes on is the start of the next one.
    if (visual.line + 1 < paragraph.lineCount && shown >= line.textStart() + line.textLength())
        shown = paragraph.layout->previousCursorPosition(shown);
    return paragraph.first + paragraph.shown.stored(shown);
}

QRectF SlideText::caretRect(int position) const
{
    const VisualLine visual = visualLines().value(lineOf(position));
    if (!visual.paragraph)
        return toCanvas({});
    const Paragraph &paragraph = *visual.paragraph;
    const QTextLine line = paragraph.layout->lineAt(visual.line);
    const int inside = std::clamp(position - paragraph.first, 0, int(paragraph.shown.positions.size()) - 1);
    const double x = line.cursorToX(paragraph.shown.positions[inside]);
    return toCanvas({paragraph.indent + x, paragraph.top + line.y(), 0, line.ascent() + line.descent()});
}

int SlideText::positionAt(QPointF point) const
{
    const QPointF inText = toText(point);
    const auto lines = visualLines();
    if (lines.isEmpty())
        return 0;
    const auto index = std::clamp<qsizetype>(
        qsizetype(std::floor((inText.y() + m_region.leading / 2) / linePitch())), 0, lines.size() - 1);
    return positionOnLine(lines[index], inText.x());
}

int SlideText::positionInLine(int position, int lines, double x) const
{
    const auto all = visualLines();
    const qsizetype index = lineOf(position) + lines;
    return index < 0 || index >= all.size() ? -1 : positionOnLine(all[index], toText({x, 0}).x());
}

int SlideText::lineStart(int position) const
{
    const VisualLine visual = visualLines().value(lineOf(position));
    return visual.paragraph
               ? visual.paragraph->first +
                     visual.paragraph->shown.stored(visual.paragraph->layout->lineAt(visual.line).textStart())
               : 0;
}

int SlideText::lineEnd(int position) const
{
    const VisualLine visual = visualLines().value(lineOf(position));
    if (!visual.paragraph)
        return 0;
    const QTextLine line = visual.paragraph->layout->lineAt(visual.line);
    int shown = line.textStart() + line.textLength();
    if (visual.line + 1 < visual.paragraph->lineCount)
        shown = visual.paragraph->layout->previousCursorPosition(shown);
    return visual.paragraph->first + visual.paragraph->shown.stored(shown);
}

QList<QRectF> SlideText::rects(int from, int to) const
{
    QList<QRectF> result;
    for (const VisualLine &visual : visualLines()) {
        const Paragraph &paragraph = *visual.paragraph;
        const QTextLine line = paragraph.layout->lineAt(visual.line);
        const int last = int(paragraph.shown.positions.size()) - 1;
        if (from > paragraph.first + last || to < paragraph.first)
            continue;
        const int begin = std::max(paragraph.shown.positions[std::clamp(from - paragraph.first, 0, last)],
                                   line.textStart());
        const int end = std::min(paragraph.shown.positions[std::clamp(to - paragraph.first, 0, last)],
                                 line.textStart() + line.textLength());
        const bool goesOn = to > paragraph.first + last && visual.line + 1 == paragraph.lineCount;
        if (begin > end || (begin == end && !goesOn))
            continue;
        const double left = line.cursorToX(begin), right = line.cursorToX(end);
        // The end of a line that is selected as well shows as a blank.
        const double width = std::abs(right - left) + (goesOn ? m_region.size * markerGapFactor : 0);
        result.append(toCanvas({paragraph.indent + std::min(left, right), paragraph.top + line.y(), width,
                                line.ascent() + line.descent()}));
    }
    return result;
}

void SlideText::scrollTo(int position)
{
    if (m_fits || !m_isWhole)
        return;
    const auto room = std::max<qsizetype>(1, qsizetype((limit() + m_region.leading) / linePitch()));
    m_scroll = double(std::max<qsizetype>(0, lineOf(position) - room + 1)) * linePitch();
}
