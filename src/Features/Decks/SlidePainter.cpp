#include "Features/Decks/SlidePainter.h"

#include "DesignSystem/OVFonts.h"
#include "Features/Decks/DeckLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace
{
/// Height of a line without its leading, as a share of the font size; presentation programs use the same.
constexpr double lineHeightFactor = 1.2;
constexpr double markerGapFactor = 0.22;

QFont::Weight fontWeight(SlideTheme::Weight weight)
{
    static constexpr auto weights = std::to_array<QFont::Weight>(
        {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold, QFont::ExtraBold, QFont::Black});
    return weights.at(std::size_t(weight));
}

QStringList fontFamilies(SlideTheme::FontKind kind)
{
    static constexpr auto choices = std::to_array<FontChoice>(
        {FontChoice::system, FontChoice::serif, FontChoice::rounded, FontChoice::monospaced});
    return OVFonts::families(choices.at(std::size_t(kind)));
}

QColor color(const QString &hex)
{
    const QColor color(u'#' + hex);
    return color.isValid() ? color : QColor(Qt::black);
}

QFont markerFont(const SlideRegion &region)
{
    QFont font = SlidePainter::font(region);
    font.setWeight(QFont::Medium);
    return font;
}

/// A paragraph of a region with its marker, laid out.
struct Paragraph {
    QString marker;
    std::unique_ptr<QTextLayout> text;
    double indent = 0;
    double top = 0;
};

std::unique_ptr<QTextLayout> layOut(const SlideRegion &region, const QString &content, double width,
                                    double &height)
{
    QString shown = region.uppercase ? content.toUpper() : content;
    shown.replace(u'\n', QChar::LineSeparator);
    const QFont font = SlidePainter::font(region);
    auto layout = std::make_unique<QTextLayout>(shown, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    static constexpr auto aligns =
        std::to_array<Qt::AlignmentFlag>({Qt::AlignLeading, Qt::AlignHCenter, Qt::AlignTrailing});
    option.setAlignment(aligns.at(std::size_t(region.align)));
    layout->setTextOption(option);
    layout->setCacheEnabled(true);

    const double lineHeight = region.size * lineHeightFactor;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width);
        // Centred within the line's height, whatever the ascent and descent of the family.
        line.setPosition({0, height + (lineHeight - line.ascent() - line.descent()) / 2});
        height += lineHeight + region.leading;
    }
    layout->endLayout();
    return layout;
}

std::vector<Paragraph> paragraphs(const SlideRegion &region)
{
    std::vector<Paragraph> result;
    double height = 0;
    for (const SlideRegion::Line &line : region.lines) {
        Paragraph paragraph;
        paragraph.marker = line.marker;
        if (!line.marker.isEmpty())
            paragraph.indent = QFontMetricsF(markerFont(region)).horizontalAdvance(line.marker) +
                               region.size * markerGapFactor;
        paragraph.top = height;
        double ownHeight = 0;
        paragraph.text = layOut(region, line.text, region.rect.width() - paragraph.indent, ownHeight);
        height += ownHeight;
        result.push_back(std::move(paragraph));
    }
    if (region.anchor == SlideRegion::Anchor::center) {
        const double offset = (region.rect.height() - (height - region.leading)) / 2;
        for (Paragraph &paragraph : result)
            paragraph.top += offset;
    }
    return result;
}

void paintText(QPainter &painter, const SlideRegion &region, const SlideTheme &theme)
{
    for (const Paragraph &paragraph : paragraphs(region)) {
        const QPointF origin = region.rect.topLeft() + QPointF(paragraph.indent, paragraph.top);
        painter.setPen(color(region.color));
        paragraph.text->draw(&painter, origin);
        if (paragraph.marker.isEmpty() || paragraph.text->lineCount() == 0)
            continue;
        const QTextLine first = paragraph.text->lineAt(0);
        painter.setFont(markerFont(region));
        painter.setPen(color(theme.accent));
        painter.drawText(QPointF(region.rect.left(), origin.y() + first.y() + first.ascent()),
                         paragraph.marker);
    }
}

void paintBox(QPainter &painter, const SlideRegion &region)
{
    const bool hasLine = !region.stroke.isEmpty() && region.strokeW > 0;
    painter.setPen(hasLine ? QPen(color(region.stroke), region.strokeW) : QPen(Qt::NoPen));
    painter.setBrush(region.fill.isEmpty() ? QBrush(Qt::NoBrush) : QBrush(color(region.fill)));
    if (region.corner > 0)
        painter.drawRoundedRect(region.rect, region.corner, region.corner);
    else
        painter.drawRect(region.rect);
}
} // namespace

void SlidePainter::paint(QPainter &painter, const QList<SlideRegion> &regions, const SlideTheme &theme,
                         double width)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(width / DeckLayout::canvas.width(), width / DeckLayout::canvas.width());
    const double opacity = painter.opacity();
    for (const SlideRegion &region : regions) {
        painter.setOpacity(opacity * region.opacity);
        if (region.kind == SlideRegion::Kind::box)
            paintBox(painter, region);
        else
            paintText(painter, region, theme);
    }
    painter.restore();
}

QFont SlidePainter::font(const SlideRegion &region)
{
    QFont font;
    font.setFamilies(fontFamilies(region.font));
    font.setPixelSize(qRound(region.size));
    font.setWeight(fontWeight(region.weight));
    // Hinted advances depend on the size on screen and would move line breaks.
    font.setHintingPreference(QFont::PreferNoHinting);
    if (region.tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, region.tracking);
    return font;
}

QList<SlidePainter::PlacedLine> SlidePainter::placedLines(const SlideRegion &region)
{
    QList<PlacedLine> placed;
    for (const Paragraph &paragraph : paragraphs(region)) {
        const QPointF origin = region.rect.topLeft() + QPointF(paragraph.indent, paragraph.top);
        for (int i = 0; i < paragraph.text->lineCount(); ++i) {
            const QTextLine line = paragraph.text->lineAt(i);
            placed.append({paragraph.text->text().mid(line.textStart(), line.textLength()),
                           line.naturalTextRect().translated(origin)});
        }
    }
    return placed;
}
