#include "DesignSystem/Contrast.h"

#include <algorithm>
#include <cmath>

namespace
{

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor &from, const QColor &to, double part)
{
    const auto channel = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()),
            channel(from.blue(), to.blue())};
}

} // namespace

double Contrast::ratio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Contrast::readableInk(const QColor &ink, const QList<QColor> &grounds)
{
    constexpr int steps = 50;
    const bool darkGround = !grounds.isEmpty() && luminance(grounds.first()) < luminance(ink);
    const QColor end = darkGround ? Qt::white : Qt::black;
    for (int step = 0; step < steps; ++step) {
        const QColor candidate = mixed(ink, end, double(step) / steps);
        if (std::ranges::all_of(grounds,
                                [&](const QColor &ground) { return ratio(candidate, ground) >= readable; }))
            return candidate;
    }
    return end;
}
