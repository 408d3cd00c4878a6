#include "Features/Relax/SceneBrushes.h"

#include <cmath>

namespace
{
constexpr int spriteSize = 64;

QRadialGradient fading(const QPointF &center, double radius, QColor color)
{
    QRadialGradient gradient(center, radius);
    const float alpha = color.alphaF();
    for (int step = 0; step <= 8; ++step) {
        const double share = step / 8.0;
        color.setAlphaF(alpha * float(std::pow(1 - share, 2.4)));
        gradient.setColorAt(share, color);
    }
    return gradient;
}
} // namespace

void SceneBrushes::glow(QPainter &painter, const QPointF &center, double radius, QColor color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(fading(center, radius, color));
    painter.drawEllipse(center, radius, radius);
}

SceneBrushes::GlowSprite::GlowSprite(QColor color)
    : m_image(spriteSize, spriteSize, QImage::Format_ARGB32_Premultiplied)
{
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    glow(painter, {spriteSize / 2.0, spriteSize / 2.0}, spriteSize / 2.0, color);
    // A bright heart, as a light seen from afar has.
    color.setAlphaF(0.9F);
    glow(painter, {spriteSize / 2.0, spriteSize / 2.0}, spriteSize / 6.0, color.lighter(115));
}

void SceneBrushes::GlowSprite::draw(QPainter &painter, const QPointF &center, double radius,
                                    double opacity) const
{
    painter.setOpacity(opacity);
    painter.drawImage(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius), m_image);
    painter.setOpacity(1);
}
