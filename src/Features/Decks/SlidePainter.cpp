#include "Features/Decks/SlidePainter.h"

#include "Features/Decks/DeckLayout.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace
{
/// A rectangle whose corners begin to bend before a circle would, so that the line has no sudden turn.
QPainterPath smoothRect(const QRectF &rect, double radius)
{
    // How far from the corner the three curves of a bend begin and lead, in radii.
    static constexpr double start = 1.528665;
    static constexpr double near = 0.63149379, low = 0.07491139;
    const double r = std::min(radius, std::min(rect.width(), rect.height()) / 2 / start);
    QPainterPath path;
    // From each edge into the next one clockwise, with the corner at the origin of the two directions.
    const auto bend = [&path, r](QPointF corner, QPointF in, QPointF out) {
        const auto at = [&](double back, double ahead) {
            return corner - in * (back * r) + out * (ahead * r);
        };
        path.lineTo(at(start, 0));
        path.cubicTo(at(1.08849296, 0), at(0.86840694, 0), at(near, low));
        path.cubicTo(at(0.37282383, 0.16905956), at(0.16905956, 0.37282383), at(low, near));
        path.cubicTo(at(0, 0.86840694), at(0, 1.08849296), at(0, start));
    };
    path.moveTo(rect.left() + start * r, rect.top());
    bend(rect.topRight(), {1, 0}, {0, 1});
    bend(rect.bottomRight(), {0, 1}, {-1, 0});
    bend(rect.bottomLeft(), {-1, 0}, {0, -1});
    bend(rect.topLeft(), {0, -1}, {1, 0});
    path.closeSubpath();
    return path;
}
} // namespace

QColor SlidePainter::color(const QString &hex)
{
    return QColor(u'#' + SlideStyle::color(hex));
}

void SlidePainter::begin(QPainter &painter, double width)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(width / DeckLayout::canvas.width(), width / DeckLayout::canvas.width());
}

void SlidePainter::paintBox(QPainter &painter, const SlideRegion &region)
{
    const bool hasLine = !region.stroke.isEmpty() && region.strokeW > 0;
    painter.setPen(hasLine ? QPen(color(region.stroke), region.strokeW) : QPen(Qt::NoPen));
    painter.setBrush(region.fill.isEmpty() ? QBrush(Qt::NoBrush) : QBrush(color(region.fill)));
    if (region.corner > 0)
        painter.drawPath(smoothRect(region.rect, region.corner));
    else
        painter.drawRect(region.rect);
}

void SlidePainter::paintText(QPainter &painter, const SlideText &text, const SlideRegion &region,
                             const SlideTheme &theme)
{
    painter.setPen(color(region.color));
    text.paint(painter, color(theme.accent));
}

void SlidePainter::paint(QPainter &painter, const QList<SlideRegion> &regions, const SlideTheme &theme,
                         double width)
{
    painter.save();
    begin(painter, width);
    const double opacity = painter.opacity();
    for (const SlideRegion &region : regions) {
        painter.setOpacity(opacity * region.opacity);
        if (region.kind == SlideRegion::Kind::box)
            paintBox(painter, region);
        else
            paintText(painter, SlideText(region), region, theme);
    }
    painter.restore();
}

QList<SlideText::PlacedLine> SlidePainter::placedLines(const SlideRegion &region)
{
    return SlideText(region).placedLines();
}
