#include "DesignSystem/OVGlowProvider.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

// Small enough to be cheap, and soft enough to be stretched over a window.
constexpr int side = 256;

/// A soft disc that fades towards its rim. Each value is rounded up or down by chance, so that a slow change
/// of brightness shows no rings.
QImage glow(const QColor &color)
{
    QRandomGenerator random(1);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const int red = color.red(), green = color.green(), blue = color.blue();
    // A byte for each channel of a pixel: the first frame may wait for this image.
    std::array<quint32, side> chances{};
    for (int y = 0; y < side; ++y) {
        random.fillRange(chances.data(), side);
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const float down = (float(y) + 0.5F) / (side / 2.0F) - 1;
        for (int x = 0; x < side; ++x) {
            const float across = (float(x) + 0.5F) / (side / 2.0F) - 1;
            const float distance = std::sqrt(across * across + down * down);
            const float rest = std::max(0.0F, 1 - distance);
            const float strength = rest * rest * (1 + 2 * distance);
            const quint32 chance = chances[std::size_t(x)];
            const auto dithered = [&](int channel, int shift) {
                return int(float(channel) * strength + float((chance >> shift) & 0xff) / 256);
            };
            const int alpha = dithered(255, 24);
            line[x] = qRgba(std::min(alpha, dithered(red, 16)), std::min(alpha, dithered(green, 8)),
                            std::min(alpha, dithered(blue, 0)), alpha);
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
