#include "Features/Relax/RelaxScene.h"
#include "Features/Relax/SceneBrushes.h"
#include "Features/Relax/SceneParts.h"
#include "Features/Relax/SceneShading.h"

#include <vector>

using namespace SceneShading;

namespace
{
/// A star of a still sky.
void paintStars(QPainter &painter, const QSizeF &size, int count, double lowest, double opacity,
                std::uint32_t seed)
{
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < count; ++i) {
        const auto number = std::uint32_t(i);
        const double height = double(hash(number, seed + 1));
        const QPointF place(double(hash(number, seed)) * size.width(), height * lowest * size.height());
        const double strength = std::pow(double(hash(number, seed + 2)), 3.0);
        const double fade = 1 - std::pow(height, 3.0);
        painter.setBrush(QColor::fromRgbF(0.86F, 0.91F, 1, float(opacity * (0.25 + 0.75 * strength) * fade)));
        const double radius = 0.5 + 0.8 * strength;
        painter.drawEllipse(place, radius, radius);
    }
}

/// One ribbon of the aurora: for each column where it hangs, how bright it is there, and how high it reaches.
struct Ribbon {
    struct Column {
        float edge;
        float brightness;
        float reach;
    };

    Light color;
    std::vector<Column> columns;

    Ribbon(QRgb rgb, int width, int number, double seconds)
        : color(Light::of(rgb)), columns(std::size_t(width))
    {
        const float time = float(seconds);
        const float base = 0.60F - 0.13F * float(number);
        const auto seed = std::uint32_t(40 + 10 * number);
        for (int i = 0; i < width; ++i) {
            const float x = float(i) / float(width);
            const float phase = float(number) * 1.9F;
            const float sway = std::sin(4.1F * x + 0.13F * time + phase) * 0.075F +
                               std::sin(8.7F * x - 0.09F * time + 2.3F * phase) * 0.03F;
            // Folds crowd together where the curtain turns, and its rays drift slowly along it.
            const float rays = noise(34 * x + 6 * sway - 0.35F * time, seed) * 0.6F +
                               noise(90 * x - 0.22F * time, seed + 1) * 0.4F;
            const float bands = smooth(noise(3.1F * x - 0.05F * time, seed + 2) * 1.5F - 0.18F);
            columns[std::size_t(i)] = {base + sway, bands * (0.35F + 0.65F * rays),
                                       0.16F + 0.2F * noise(5 * x + 0.04F * time, seed + 3)};
        }
    }

    float at(int column, float y) const
    {
        const Column &here = columns[std::size_t(column)];
        const float above = here.edge - y;
        // A soft lower hem, and light that thins out upwards.
        if (above < -0.05F)
            return 0;
        const float rise = smoothBetween(-0.05F, 0.03F, above);
        const float share = std::max(0.0F, above) / here.reach;
        return share > 2.6F
                   ? 0
                   : here.brightness * rise * std::max(0.0F, 1 / (1 + share * share * 3.2F) - 0.042F);
    }
};
} // namespace

void AuroraScene::soft(QImage &image, double seconds)
{
    const int width = image.width();
    const std::array ribbons{Ribbon(0xffb98cff, width, 2, seconds), Ribbon(0xff6aa9ff, width, 1, seconds),
                             Ribbon(0xff5ee7c4, width, 0, seconds)};
    const Backdrop backdrop(relaxSceneColors(RelaxScene::aurora));
    const std::array strengths{0.42F, 0.5F, 0.72F};
    shade(image, [&](float y) {
        const Light sky = backdrop.at(y);
        return [&, y, sky](float x) {
            const int column = std::min(width - 1, int(x * float(width)));
            Light light = sky;
            for (std::size_t i = 0; i < ribbons.size(); ++i)
                light = light + ribbons[i].color * (strengths[i] * ribbons[i].at(column, y));
            return light;
        };
    });
}

void AuroraScene::still(QPainter &painter, const QSizeF &size)
{
    paintStars(painter, size, int(size.width() * size.height() / 6500), 0.8, 0.75, 3);
    const auto ridge = [](double scale, double base, double depth, std::uint32_t seed) {
        return [=](double x) {
            return base - depth * (0.7 * double(noise(float(scale * x), seed)) +
                                   0.3 * double(noise(float(3.7 * scale * x), seed + 5)));
        };
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x0b, 0x1c, 0x2e));
    painter.drawPath(SceneBrushes::ground(size, ridge(4.2, 0.93, 0.19, 11), 4));
    painter.setBrush(QColor(0x06, 0x10, 0x1c));
    painter.drawPath(SceneBrushes::ground(size, ridge(6.3, 0.99, 0.15, 21), 4));
}

void NightScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::night));
    const Light glow = Light::of(0xfffff3c0);
    const Light haze = Light::of(0xff5a6aa8);
    const float aspect = float(image.width()) / float(image.height());
    const float breath = 0.94F + 0.06F * float(std::sin(seconds * tau / 17));
    const float drift = float(seconds) * 0.004F;
    shade(image, [&](float y) {
        const Light sky = backdrop.at(y);
        return [&, y, sky](float x) {
            // The band of the galaxy lies across the sky.
            const float across = (y - 0.78F + 0.55F * x) * 3.1F;
            const float band = std::exp(-across * across);
            const float mist = band < 0.03F ? 0 : band * clouds(7 * x + drift, 7 * y, 5);
            const float dx = (x - 0.76F) * aspect;
            const float dy = y - 0.27F;
            const float moon = 0.018F / (dx * dx + dy * dy + 0.012F);
            return sky + haze * (0.42F * mist * mist + 0.05F * band) + glow * (0.16F * moon * breath);
        };
    });
}

void NightScene::still(QPainter &painter, const QSizeF &size)
{
    paintStars(painter, size, int(size.width() * size.height() / 3400), 1.0, 0.8, 60);
    const double radius = size.height() * 0.052;
    const QPointF center(size.width() * 0.76, size.height() * 0.27);
    QPainterPath disc;
    disc.addEllipse(center, radius, radius);
    QPainterPath shadow;
    shadow.addEllipse(center + QPointF(-radius * 0.55, -radius * 0.22), radius * 0.94, radius * 0.94);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xf6, 0xd6));
    painter.drawPath(disc.subtracted(shadow));
}

void NightScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    static const SceneBrushes::GlowSprite star(QColor(0xff, 0xf3, 0xc0, 150));
    for (std::uint32_t i = 0; i < 56; ++i) {
        // Each swells and fades over many seconds, never quite out.
        const double period = 5 + 8 * double(hash(i, 81));
        const double wave = 0.5 + 0.5 * std::sin(seconds * tau / period + tau * double(hash(i, 82)));
        const QPointF place(double(hash(i, 83)) * size.width(), double(hash(i, 84)) * 0.94 * size.height());
        const double radius = (2.2 + 3.4 * std::pow(double(hash(i, 85)), 2.0)) * (0.9 + 0.2 * wave);
        star.draw(painter, place, radius, 0.25 + 0.65 * wave);
    }
}

void SunsetScene::soft(QImage &image, double seconds)
{
    const Backdrop backdrop(relaxSceneColors(RelaxScene::sunset));
    const Light warm = Light::of(0xffffd9a0);
    const Light rose = Light::of(0xffff8f6b);
    const float aspect = float(image.width()) / float(image.height());
    const float breath = 0.96F + 0.04F * float(std::sin(seconds * tau / 14));
    const float drift = float(seconds) * 0.006F;
    shade(image, [&](float y) {
        const Light sky = backdrop.at(y * 1.18F);
        const float high = smoothBetween(0.62F, 0.08F, y);
        return [&, y, sky, high](float x) {
            const float dx = (x - 0.5F) * aspect;
            const float dy = (y - 0.6F) * 1.25F;
            const float distance = dx * dx + dy * dy;
            const float sun = 0.03F / (distance + 0.03F);
            // Long thin clouds, lit from below.
            const float cloud =
                smoothBetween(0.5F, 0.8F, clouds(2.3F * x * aspect + drift, 13 * y, 17)) * high;
            const float near = 1 / (1 + 2.2F * distance);
            return sky.towards(rose, 0.55F * cloud * near) + warm * (0.55F * sun * breath);
        };
    });
}

void SunsetScene::moving(QPainter &painter, const QSizeF &size, double seconds)
{
    const QPointF sun(size.width() * 0.5, size.height() * 0.6);
    const double radius = size.height() * 0.075;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xee, 0xc8));
    painter.drawEllipse(sun, radius, radius);
    // Hills, one behind the other, each nearer one darker; they pass by as slowly as from a far-off train.
    constexpr int hills = 4;
    for (int i = 0; i < hills; ++i) {
        const double share = double(i) / (hills - 1);
        const double shift = seconds * 0.0016 * (1 + 1.6 * share);
        const double base = 0.64 + 0.105 * i;
        const auto height = [&](double x) {
            const double at = x + shift;
            return base - 0.045 * std::sin(at * (5.1 - share) + 1.7 * i) -
                   0.022 * std::sin(at * (11.3 - 2 * share) + 0.9 * i) - 0.006 * std::sin(at * 37 + 2.0 * i);
        };
        const QColor color = SceneBrushes::mixed(0xffc0584e, 0xff3a1838, 0.12 + 0.88 * std::sqrt(share));
        QLinearGradient fill(0, (base - 0.08) * size.height(), 0, (base + 0.16) * size.height());
        fill.setColorAt(0, SceneBrushes::mixed(color.rgb(), 0xff6b2e5a, 0.25));
        fill.setColorAt(1, color.darker(112));
        painter.setBrush(fill);
        painter.drawPath(SceneBrushes::ground(size, height, 5));
    }
}
