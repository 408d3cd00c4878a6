#include "DesignSystem/OVGlowProvider.h"

#include <QPainter>
#include <QRadialGradient>

namespace
{

// Small enough to be cheap, and soft enough to be stretched over a window.
constexpr int side = 256;
constexpr int steps = 8;

} // namespace

OVGlowProvider::OVGlowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage OVGlowProvider::requestImage(const QString &id, QSize *size, const QSize &)
{
    QColor color = QColor::fromString(u'#' + id);
    QRadialGradient gradient(side / 2.0, side / 2.0, side / 2.0);
    for (int step = 0; step <= steps; ++step) {
        const float distance = float(step) / steps;
        color.setAlphaF((1 - distance) * (1 - distance) * (1 + 2 * distance));
        gradient.setColorAt(distance, color);
    }
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(image.rect(), gradient);
    painter.end();
    if (size)
        *size = image.size();
    return image;
}
