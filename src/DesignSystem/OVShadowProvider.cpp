#include "DesignSystem/OVShadowProvider.h"

#include <algorithm>
#include <cmath>

namespace
{

/// How far a point lies outside a square with round corners around the origin; negative inside.
double distanceOutside(double x, double y, double halfSide, double radius)
{
    const double dx = std::abs(x) - (halfSide - radius);
    const double dy = std::abs(y) - (halfSide - radius);
    return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) - radius;
}

/// From 1 well inside to 0 at the end of the blur, without a visible edge at either end.
double falloff(double distance, double blur)
{
    const double part = std::clamp((blur - distance) / (2 * blur), 0.0, 1.0);
    return part * part * part * (3 - 2 * part);
}

} // namespace

OVShadowProvider::OVShadowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage OVShadowProvider::requestImage(const QString &id, QSize *size, const QSize &)
{
    const QStringList parts = id.split(QLatin1Char('/'));
    const int radius = parts.value(0).toInt();
    const int blur = std::max(1, parts.value(1).toInt());
    const double strength = parts.value(2).toInt() / 100.0;

    const int side = 2 * (radius + blur) + 1;
    const double middle = side / 2.0;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const double distance = distanceOutside(x + 0.5 - middle, y + 0.5 - middle, radius + 0.5, radius);
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(255 * strength * falloff(distance, blur))));
        }
    }
    if (size)
        *size = image.size();
    return image;
}
