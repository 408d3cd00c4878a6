#include "Features/Relax/RelaxScene.h"
#include "Features/Relax/SceneBrushes.h"
#include "Features/Relax/SceneParts.h"
#include "Features/Relax/SceneShading.h"

using namespace SceneShading;

void ForestScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::forest));
    const Light sunlight = Light::of(0xffcfe8a8);
    const Light mist = Light::of(0xff5f8f6e);
    const float aspect = float(image.width()) / float(image.height());
    const float time = float(seconds);
    shade(image, [&](float y) {
        const Light shadow = backdrop.at(y);
        const float low = smoothBetween(0.35F, 0.8F, y) * smoothBetween(1.05F, 0.8F, y);
        return [&, y, shadow, low](float x) {
            // Beams fall from the upper right through the crowns.
            const float along = (x - 0.9F) * aspect + 0.75F * y;
            const float beams = noise(5 * along + 0.02F * time, 41) * noise(11 * along - 0.03F * time, 43);
            const float reach = smoothBetween(1.0F, 0.1F, y) * smoothBetween(-1.5F, 0.2F, along);
            const float dx = (x - 0.68F) * aspect;
            const float dy = y - 0.2F;
            const float opening = 0.05F / (dx * dx + dy * dy + 0.09F);
            const float fog = low * clouds(1.6F * x * aspect + 0.015F * time, 4 * y, 47);
            return shadow + sunlight * (0.42F * beams * reach * opening + 0.22F * opening) +
                   mist * (0.24F * fog);
        };
    });
}

namespace
{
struct TrunkLayer {
    std::uint32_t seed;
    int count;
    double width;
    QColor color;
    double foot;
};

void paintTrunks(QPainter &painter, const QSizeF &size, const TrunkLayer &layer)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(layer.color);
    for (std::uint32_t i = 0; i < std::uint32_t(layer.count); ++i) {
        const double x = (double(i) + 0.15 + 0.7 * double(hash(i, layer.seed))) / layer.count * size.width();
        const double half = layer.width * (0.6 + 0.8 * double(hash(i, layer.seed + 1))) * size.height() / 2;
        const double lean = (double(hash(i, layer.seed + 2)) - 0.5) * 3 * half;
        const double foot = layer.foot * size.height();
        QPainterPath trunk;
        trunk.moveTo(x - half * 0.62 + lean, 0);
        trunk.cubicTo(x - half * 0.7 + lean, foot * 0.5, x - half, foot * 0.7, x - 1.8 * half, foot);
        trunk.lineTo(x + 1.8 * half, foot);
        trunk.cubicTo(x + half, foot * 0.7, x + half * 0.7 + lean, foot * 0.5, x + half * 0.62 + lean, 0);
        painter.drawPath(trunk);
    }
}
} // namespace

void ForestScene::still(QPainter &painter, const QSizeF &size)
{
    paintTrunks(painter, size, {401, 22, 0.016, QColor(0x2a, 0x50, 0x3a, 120), 0.8});
    paintTrunks(painter, size, {501, 13, 0.03, QColor(0x17, 0x33, 0x23, 190), 0.88});
    const auto floor = [](double base, std::uint32_t seed) {
        return [=](double x) {
            return base - 0.06 * double(noise(float(4 * x), seed)) -
                   0.012 * double(noise(float(60 * x), seed + 1));
        };
    };
    painter.setBrush(QColor(0x10, 0x26, 0x19, 220));
    painter.drawPath(SceneBrushes::ground(size, floor(0.92, 61), 3));
    paintTrunks(painter, size, {601, 6, 0.062, QColor(0x0a, 0x18, 0x10, 250), 0.99});
    painter.setBrush(QColor(0x07, 0x11, 0x0b));
    painter.drawPath(SceneBrushes::ground(size, floor(1.01, 71), 3));
}

void ForestScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    static const SceneBrushes::GlowSprite firefly(QColor(0xea, 0xf7, 0xc8, 120));
    for (std::uint32_t i = 0; i < 42; ++i) {
        const double depth = 0.35 + 0.65 * double(hash(i, 91));
        const double phase = tau * double(hash(i, 92));
        const double x = double(hash(i, 93)) + 0.035 * std::sin(seconds * 0.11 * (1 + depth) + phase) +
                         0.012 * std::sin(seconds * 0.29 + 2 * phase);
        const double y = 0.2 + 0.74 * double(hash(i, 94)) + 0.03 * std::sin(seconds * 0.13 + 1.7 * phase);
        const double swell = 0.5 + 0.5 * std::sin(seconds * tau / (6 + 5 * double(hash(i, 95))) + phase);
        firefly.draw(painter, QPointF(x * size.width(), y * size.height()), (3 + 9 * depth * depth),
                     (0.12 + 0.75 * swell) * depth);
    }
}

void MeadowScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::meadow));
    const Light white = Light::of(0xffffffff);
    const Light sun = Light::of(0xfffff6d0);
    const float aspect = float(image.width()) / float(image.height());
    const float time = float(seconds);
    shade(image, [&](float y) {
        const Light air = backdrop.at(y);
        const float high = smoothBetween(0.6F, 0.1F, y);
        return [&, y, air, high](float x) {
            const float cloud =
                smoothBetween(0.45F, 0.85F, clouds(1.5F * x * aspect + 0.012F * time, 4.2F * y, 53)) * high;
            const float dx = (x - 0.22F) * aspect;
            const float dy = y - 0.16F;
            const float light = 0.035F / (dx * dx + dy * dy + 0.05F);
            return air.towards(white, 0.62F * cloud) + sun * (0.26F * light);
        };
    });
}

namespace
{
/// A blade or a flower that sways in the wind.
void paintPlant(QPainter &painter, const QSizeF &size, std::uint32_t number, double seconds)
{
    static constexpr std::array<QRgb, 5> petals{0xfff7e7b2, 0xfff4c7b0, 0xffe9b7c6, 0xfffdfaf0, 0xffc9b6e4};
    const double depth = double(number) / 60;
    const double x = (double(hash(number, 111)) * 1.04 - 0.02) * size.width();
    const double foot = (0.86 + 0.17 * depth) * size.height();
    const double height = (0.09 + 0.13 * double(hash(number, 112))) * (0.55 + 0.75 * depth) * size.height();
    const double wind = std::sin(seconds * 0.62 - 2.2 * x / size.width() + 0.8 * double(hash(number, 113))) +
                        0.4 * std::sin(seconds * 1.05 + tau * double(hash(number, 114)));
    const QPointF top(x + (0.1 * wind + 0.12 * (double(hash(number, 115)) - 0.5)) * height, foot - height);
    QPainterPath stem(QPointF(x, foot));
    stem.quadTo(QPointF(x, foot - 0.6 * height), top);
    QPen pen(SceneBrushes::mixed(0xff8fc7a0, 0xff3f7d5c, depth));
    pen.setWidthF(1 + 1.6 * depth);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(stem);
    if (number % 3 == 0)
        return;
    const double radius = (0.008 + 0.008 * double(hash(number, 116))) * (0.6 + 0.7 * depth) * size.height();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(petals[number % petals.size()]));
    for (int petal = 0; petal < 5; ++petal) {
        const double angle = tau * petal / 5 + 0.2 * wind;
        painter.drawEllipse(top + QPointF(std::cos(angle), std::sin(angle)) * (0.72 * radius), 0.62 * radius,
                            0.62 * radius);
    }
    painter.setBrush(QColor(0xe8, 0xb8, 0x5a));
    painter.drawEllipse(top, 0.42 * radius, 0.42 * radius);
}
} // namespace

void MeadowScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    constexpr int hills = 3;
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < hills; ++i) {
        const double base = 0.66 + 0.11 * i;
        const auto height = [=](double x) {
            return base - 0.05 * std::sin(3.4 * x + 2.3 * i + 0.4) - 0.018 * std::sin(8.1 * x + 1.1 * i);
        };
        const QColor color = SceneBrushes::mixed(0xffb5dfc3, 0xff6fb28c, i / 2.0);
        QLinearGradient fill(0, (base - 0.07) * size.height(), 0, (base + 0.3) * size.height());
        fill.setColorAt(0, color.lighter(104));
        fill.setColorAt(1, color.darker(112));
        painter.setBrush(fill);
        painter.drawPath(SceneBrushes::ground(size, height, 10));
        painter.setPen(Qt::NoPen);
    }
    for (std::uint32_t i = 0; i < 60; ++i)
        paintPlant(painter, size, i, seconds);
    // Seeds in the air.
    static const SceneBrushes::GlowSprite seed(QColor(0xff, 0xff, 0xfa, 150));
    for (std::uint32_t i = 0; i < 16; ++i) {
        const double way = double(hash(i, 121)) + seconds * (0.005 + 0.006 * double(hash(i, 122)));
        const double x = (way - std::floor(way)) * 1.1 - 0.05;
        const double y = 0.25 + 0.55 * double(hash(i, 123)) + 0.02 * std::sin(seconds * 0.3 + double(i));
        seed.draw(painter, QPointF(x * size.width(), y * size.height()), 5 + 3 * double(hash(i, 124)), 0.8);
    }
}

void EmbersScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::embers));
    const Light fire = Light::of(0xffffa04a);
    const Light heart = Light::of(0xffffc07a);
    const float aspect = float(image.width()) / float(image.height());
    const float time = float(seconds);
    // The fire breathes; it never flickers.
    const float breath = 0.9F + 0.06F * std::sin(time * 0.9F) + 0.04F * std::sin(time * 1.7F + 1);
    shade(image, [&](float y) {
        const Light dark = backdrop.at(y);
        return [&, y, dark](float x) {
            const float dx = (x - 0.5F) * aspect * 0.8F;
            const float dy = y - 1.04F;
            const float near = 0.14F / (dx * dx + dy * dy * 1.3F + 0.14F);
            const float low = smoothBetween(0.55F, 1.0F, y);
            const float tongues = clouds(3.2F * x * aspect, 3.4F * y + 0.22F * time, 59);
            const float smoke = clouds(1.8F * x * aspect + 0.01F * time, 2.2F * y + 0.05F * time, 67);
            return dark * (0.45F + 0.55F * near) +
                   fire * (0.85F * near * near * near * breath + 0.05F * smoke * (1 - low)) +
                   heart * (1.1F * near * near * low * tongues * tongues * breath);
        };
    });
}

void EmbersScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    static const SceneBrushes::GlowSprite spark(QColor(0xff, 0xc0, 0x7a, 130));
    static const SceneBrushes::GlowSprite coal(QColor(0xff, 0x7a, 0x2e, 110));
    for (std::uint32_t i = 0; i < 34; ++i) {
        const double swell = 0.5 + 0.5 * std::sin(seconds * tau / (5 + 4 * double(hash(i, 131))) + double(i));
        const double x = 0.5 + 0.62 * (double(hash(i, 132)) + double(hash(i, 133)) - 1);
        const double y = 0.955 + 0.06 * double(hash(i, 134)) + 0.12 * (x - 0.5) * (x - 0.5);
        coal.draw(painter, QPointF(x * size.width(), y * size.height()),
                  (0.02 + 0.03 * double(hash(i, 135))) * size.height(), 0.35 + 0.5 * swell);
    }
    for (std::uint32_t i = 0; i < 46; ++i) {
        const double way = double(hash(i, 141)) + seconds / (9 + 8 * double(hash(i, 142)));
        const double risen = way - std::floor(way);
        const auto turn = i * 13U + std::uint32_t(std::int64_t(std::floor(way)));
        const double phase = tau * double(hash(turn, 143));
        const double x = 0.5 +
                         0.42 * (double(hash(turn, 144)) + double(hash(turn, 145)) - 1) * (1 + 0.5 * risen) +
                         0.022 * std::sin(seconds * 0.7 + phase) * risen;
        const double y = 1.0 - 0.92 * risen;
        const double fade = double(smooth(float(risen) * 8)) * std::pow(1 - risen, 1.3);
        spark.draw(painter, QPointF(x * size.width(), y * size.height()),
                   2.4 + 4.2 * double(hash(i, 146)) * (1 - 0.5 * risen), 0.95 * fade);
    }
}
