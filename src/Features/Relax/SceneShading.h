#pragma once

#include <QImage>
#include <QRgb>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

/// Tools to compute the soft parts of a scene point by point, in an image that is smaller than what is shown.
namespace SceneShading
{
inline constexpr double tau = 2 * std::numbers::pi;

/// A colour with channels from 0 to 1, or beyond while light adds up.
struct Light {
    float red = 0;
    float green = 0;
    float blue = 0;

    static Light of(QRgb color)
    {
        return {float(qRed(color)) / 255, float(qGreen(color)) / 255, float(qBlue(color)) / 255};
    }
    Light operator+(const Light &other) const
    {
        return {red + other.red, green + other.green, blue + other.blue};
    }
    Light operator*(float factor) const { return {red * factor, green * factor, blue * factor}; }
    Light towards(const Light &other, float share) const { return *this * (1 - share) + other * share; }
};

/// A number from 0 to 1 that depends on nothing but these.
constexpr float hash(std::uint32_t number, std::uint32_t seed = 0)
{
    std::uint32_t bits = number * 0x9e3779b9U ^ (seed + 1) * 0x85ebca6bU;
    bits ^= bits >> 16;
    bits *= 0x7feb352dU;
    bits ^= bits >> 15;
    bits *= 0x846ca68bU;
    bits ^= bits >> 16;
    return float(bits >> 8) / float(1 << 24);
}

constexpr float smooth(float share)
{
    share = std::clamp(share, 0.0F, 1.0F);
    return share * share * (3 - 2 * share);
}

constexpr float smoothBetween(float from, float to, float value)
{
    return smooth((value - from) / (to - from));
}

/// Noise along a line, from 0 to 1, that changes smoothly over a distance of 1.
inline float noise(float at, std::uint32_t seed)
{
    const float start = std::floor(at);
    const auto cell = std::uint32_t(std::int32_t(start));
    const float share = smooth(at - start);
    return hash(cell, seed) * (1 - share) + hash(cell + 1, seed) * share;
}

/// Noise over a plane, from 0 to 1.
inline float noise(float x, float y, std::uint32_t seed)
{
    const float row = std::floor(y);
    const auto number = std::uint32_t(std::int32_t(row));
    const float share = smooth(y - row);
    return noise(x, seed + number * 131U) * (1 - share) + noise(x, seed + (number + 1) * 131U) * share;
}

/// Several octaves of it.
inline float clouds(float x, float y, std::uint32_t seed)
{
    return 0.55F * noise(x, y, seed) + 0.28F * noise(2.1F * x, 2.1F * y, seed + 7) +
           0.17F * noise(4.3F * x, 4.3F * y, seed + 13);
}

/// The backdrop from top to bottom.
class Backdrop
{
public:
    explicit Backdrop(const std::array<QRgb, 3> &colors)
        : m_colors{Light::of(colors[0]), Light::of(colors[1]), Light::of(colors[2])}
    {
    }
    /// @param y from 0 at the top to 1
    Light at(float y) const
    {
        return y < 0.5F ? m_colors[0].towards(m_colors[1], smooth(2 * y))
                        : m_colors[1].towards(m_colors[2], smooth(2 * y - 1));
    }

private:
    std::array<Light, 3> m_colors;
};

inline QRgb toRgb(const Light &light, float grain)
{
    const auto channel = [grain](float value) { return int(std::clamp(value * 255 + grain, 0.0F, 255.0F)); };
    return qRgb(channel(light.red), channel(light.green), channel(light.blue));
}

/// Fills the image: `row(y)` gives for each row a function from x to the light there, both from 0 to 1. A
/// grain of less than one step of colour hides the bands that dark gradients have otherwise.
template <typename RowShader>
void shade(QImage &image, RowShader row)
{
    const float width = float(image.width());
    const float height = float(image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto light = row((float(y) + 0.5F) / height);
        auto *const pixels = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            pixels[x] =
                toRgb(light((float(x) + 0.5F) / width), hash(std::uint32_t(x) * 7919U + std::uint32_t(y)));
    }
}
} // namespace SceneShading
