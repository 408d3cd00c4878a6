#include "DesignSystem/OVGlowProvider.h"

#include <QPainter>
#include <QRadialGradient>
#include <QRandomGenerator>

namespace
{

// Small enough to be cheap, and soft enough to be stretched over a window.
constexpr int side = 256;
constexpr int steps = 8;

QImage glow(QColor color)
{
    QRadialGradient gradient(side / 2.0, side / 2.0, side / 2.0);
    for (int step = 0; step <= steps; ++step) {
        const float distance = float(step) / steps;
        color.setAlphaF((1 - distance) * (1 - distance) * (1 + 2 * distance));
        gradient.setColorAt(distance, color);
    }
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(image.rect(), gradient);
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
