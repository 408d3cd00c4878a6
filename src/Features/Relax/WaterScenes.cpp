#include "Features/Relax/RelaxScene.h"
#include "Features/Relax/SceneBrushes.h"
#include "Features/Relax/SceneParts.h"
#include "Features/Relax/SceneShading.h"

using namespace SceneShading;

void OceanScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::ocean));
    const Light moonlight = Light::of(0xffbfeef2);
    const float aspect = float(image.width()) / float(image.height());
    const float time = float(seconds);
    const float breath = 0.95F + 0.05F * float(std::sin(seconds * tau / 13));
    shade(image, [&](float y) {
        const Light depth = backdrop.at(y);
        const float sky = smoothBetween(0.46F, 0.3F, y);
        return [&, y, depth, sky](float x) {
            const float dx = (x - 0.62F) * aspect;
            const float dy = y - 0.24F;
            const float glow = 0.024F / (dx * dx + dy * dy + 0.03F);
            const float mist = sky * clouds(2.2F * x * aspect + 0.012F * time, 5 * y, 23);
            return depth + moonlight * (0.34F * glow * breath + 0.07F * mist);
        };
    });
}

namespace
{
/// A layer of waves: a long swell, shorter waves on it, and a little unrest.
double waveHeight(double x, double seconds, int layer)
{
    const double pace = seconds * (0.32 + 0.1 * layer);
    return 0.014 * std::sin(tau * x * (1.1 + 0.25 * layer) + pace + 2.1 * layer) +
           (0.007 + 0.002 * layer) * std::sin(tau * x * (2.9 + 0.4 * layer) - 1.3 * pace + layer) +
           0.0025 * std::sin(tau * x * 7.7 + 1.9 * pace);
}

/// The path of the moon on the water: short strokes of light that come and go.
void paintShimmer(QPainter &painter, const QSizeF &size, double seconds)
{
    for (std::uint32_t i = 0; i < 90; ++i) {
        const double depth = double(hash(i, 31));
        const double period = 4 + 5 * double(hash(i, 32));
        const double wave = std::sin(seconds * tau / period + tau * double(hash(i, 33)));
        if (wave <= 0)
            continue;
        const double spread = (0.03 + 0.16 * depth) * (double(hash(i, 34)) + double(hash(i, 35)) - 1);
        const double y = 0.445 + 0.5 * depth * depth;
        const double x = 0.62 + spread + 0.006 * std::sin(seconds * 0.4 + double(i));
        const double length = (0.006 + 0.02 * depth) * (0.6 + 0.4 * wave);
        QPen pen(QColor::fromRgbF(0.86F, 0.97F, 1, float(0.5 * wave * (1 - 0.6 * depth))));
        pen.setWidthF(1 + 1.4 * depth);
        pen.setCapStyle(Qt::RoundCap);
        painter.setPen(pen);
        painter.drawLine(QPointF((x - length) * size.width(), y * size.height()),
                         QPointF((x + length) * size.width(), y * size.height()));
    }
}
} // namespace

void OceanScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    constexpr std::array<QRgb, 3> crests{0xff7fd4e0, 0xff4fa6c0, 0xff2e7c99};
    constexpr std::array bases{0.44, 0.57, 0.74};
    painter.setPen(Qt::NoPen);
    SceneBrushes::glow(painter, QPointF(size.width() * 0.62, size.height() * 0.24), size.height() * 0.075,
                       QColor(0xf2, 0xff, 0xff, 210));
    painter.setBrush(QColor(0xf0, 0xfd, 0xfb, 235));
    painter.drawEllipse(QPointF(size.width() * 0.62, size.height() * 0.24), size.height() * 0.038,
                        size.height() * 0.038);
    for (int layer = 0; layer < 3; ++layer) {
        const double base = bases[std::size_t(layer)];
        const auto height = [=](double x) { return base + waveHeight(x, seconds, layer); };
        QColor crest = QColor::fromRgb(crests[std::size_t(layer)]);
        QLinearGradient fill(0, (base - 0.02) * size.height(), 0, (base + 0.34) * size.height());
        crest.setAlphaF(layer == 0 ? 0.5F : 0.55F);
        fill.setColorAt(0, crest);
        crest.setAlphaF(0.2F);
        fill.setColorAt(0.35, SceneBrushes::mixed(crest.rgb(), 0xff0b3a4a, 0.55));
        fill.setColorAt(1, QColor(0x05, 0x1c, 0x28));
        painter.setBrush(fill);
        painter.setPen(Qt::NoPen);
        painter.drawPath(SceneBrushes::ground(size, height, 7));
    }
    paintShimmer(painter, size, seconds);
}

void RainScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::rain));
    const Light cloudLight = Light::of(0xff6b7f95);
    const Light lamp = Light::of(0xffd9c7a0);
    const float aspect = float(image.width()) / float(image.height());
    const float time = float(seconds);
    shade(image, [&](float y) {
        const Light air = backdrop.at(y);
        const float high = smoothBetween(0.75F, 0.05F, y);
        return [&, y, air, high](float x) {
            const float cloud = clouds(1.7F * x * aspect - 0.016F * time, 3.2F * y + 0.006F * time, 29);
            const float dx = (x - 0.3F) * aspect;
            const float dy = y - 0.66F;
            const float light = 0.01F / (dx * dx + dy * dy * 2 + 0.05F);
            return air + cloudLight * (0.34F * high * cloud * cloud) + lamp * (0.3F * light);
        };
    });
}

namespace
{
struct RainLayer {
    std::uint32_t seed;
    int count;
    double length;
    double speed;
    double width;
    double opacity;
};

void paintStreaks(QPainter &painter, const QSizeF &size, double seconds, const RainLayer &layer)
{
    static constexpr double slant = 0.05;
    QColor color = SceneBrushes::mixed(0xff2a3644, 0xffd6e4f0, 0.8);
    color.setAlphaF(float(layer.opacity));
    QPen pen(color);
    pen.setWidthF(layer.width);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    QList<QLineF> lines;
    for (std::uint32_t i = 0; i < std::uint32_t(layer.count); ++i) {
        const double pace = layer.speed * (0.85 + 0.3 * double(hash(i, layer.seed)));
        const double fallen = double(hash(i, layer.seed + 1)) + seconds * pace;
        const double y = (fallen - std::floor(fallen)) * 1.2 - 0.15;
        // Each drop comes down in another place than the one before.
        const auto turn = std::uint32_t(std::int64_t(std::floor(fallen)));
        const double x = double(hash(i * 31U + turn, layer.seed + 2)) * 1.1 - slant * y;
        const double length = layer.length * (0.7 + 0.6 * double(hash(i, layer.seed + 3)));
        lines.append(QLineF(x * size.width(), y * size.height(), (x - slant * length) * size.width(),
                            (y + length) * size.height()));
    }
    painter.drawLines(lines);
}

/// Rings that open where drops meet the water.
void paintRings(QPainter &painter, const QSizeF &size, double seconds)
{
    painter.setBrush(Qt::NoBrush);
    for (std::uint32_t i = 0; i < 26; ++i) {
        const double period = 2.6 + 1.8 * double(hash(i, 71));
        const double turn = seconds / period + double(hash(i, 72));
        const double share = turn - std::floor(turn);
        const auto number = i * 17U + std::uint32_t(std::int64_t(std::floor(turn)));
        const double depth = double(hash(number, 73));
        const QPointF center(double(hash(number, 74)) * size.width(), (0.82 + 0.17 * depth) * size.height());
        const double radius = (0.006 + 0.03 * share) * (0.5 + depth) * size.width();
        QPen pen(QColor::fromRgbF(0.78F, 0.86F, 0.93F, float(0.34 * (1 - share) * (1 - share))));
        pen.setWidthF(1.2);
        painter.setPen(pen);
        painter.drawEllipse(center, radius, radius * 0.26);
    }
}
} // namespace

void RainScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    QLinearGradient water(0, size.height() * 0.76, 0, size.height());
    water.setColorAt(0, QColor(0x0e, 0x15, 0x1d, 0));
    water.setColorAt(1, QColor(0x0b, 0x11, 0x18, 190));
    painter.fillRect(QRectF(0, size.height() * 0.76, size.width(), size.height() * 0.24), water);
    paintRings(painter, size, seconds);
    paintStreaks(painter, size, seconds, {101, 90, 0.035, 0.42, 0.8, 0.16});
    paintStreaks(painter, size, seconds, {201, 60, 0.055, 0.56, 1.1, 0.24});
    paintStreaks(painter, size, seconds, {301, 26, 0.085, 0.72, 1.6, 0.3});
}
