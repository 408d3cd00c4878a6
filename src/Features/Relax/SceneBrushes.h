#pragma once

#include <QPainter>
#include <QPainterPath>

/// What several scenes are painted with.
namespace SceneBrushes
{
/// A disc of light that fades out to its edge.
void glow(QPainter &painter, const QPointF &center, double radius, QColor color);

/// The same from a picture that is made once for each colour, for lights by the dozen.
class GlowSprite
{
public:
    explicit GlowSprite(QColor color);
    /// @param opacity from 0 to 1
    void draw(QPainter &painter, const QPointF &center, double radius, double opacity) const;

private:
    QImage m_image;
};

/// The ground below a line: `height(x)` gives its y for x from 0 to 1, both as parts of the size.
template <typename Height>
QPainterPath ground(const QSizeF &size, Height height, double step = 8)
{
    QPainterPath path;
    path.moveTo(0, size.height());
    for (double x = 0; x < size.width() + step; x += step)
        path.lineTo(x, height(x / size.width()) * size.height());
    path.lineTo(size.width() + step, size.height());
    path.closeSubpath();
    return path;
}

inline QColor mixed(QRgb first, QRgb second, double share)
{
    const auto channel = [share](int from, int to) { return int(from + (to - from) * share); };
    return QColor(channel(qRed(first), qRed(second)), channel(qGreen(first), qGreen(second)),
                  channel(qBlue(first), qBlue(second)));
}
} // namespace SceneBrushes
