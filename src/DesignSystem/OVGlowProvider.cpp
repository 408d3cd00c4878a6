#include "DesignSystem/OVGlowProvider.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

namespace
{

// Small enough to be cheap, and soft enough to be stretched over a window.
constexpr int side = 256;

/// Rounds up or down by chance, so that a slow change of brightness shows no rings.
int dithered(double value, QRandomGenerator &random)
{
    return int(value + random.generateDouble());
}

QImage glow(const QColor &color)
{
    QRandomGenerator random(1);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const double distance = std::hypot(x + 0.5 - side / 2.0, y + 0.5 - side / 2.0) / (side / 2.0);
            const double rest = std::max(0.0, 1 - distance);
            const double strength = rest * rest * (1 + 2 * distance);
            const int alpha = dithered(255 * strength, random);
            const auto part = [&](int channel) {
                return std::min(alpha, dithered(channel * strength, random));
            };
            line[x] = qRgba(part(color.red()), part(color.green()), part(color.blue()), alpha);
        }
    }
    return image;
}

/// Grain of at most two steps of brightness, the same at every start.
QImage grain()
{
    QRandomGenerator random(1);
    QImage image(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const int brightness = random.bounded(2) * 255;
            line[x] = qRgba(brightness, brightness, brightness, random.bounded(4));
        }
    }
    return image;
}

} // namespace

OVGlowProvider::OVGlowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage OVGlowProvider::requestImage(const QString &id, QSize *size, const QSize &)
{
    const QImage image = id == u"grain" ? grain() : glow(QColor::fromString(u'#' + id));
    if (size)
        *size = image.size();
    return image;
}
