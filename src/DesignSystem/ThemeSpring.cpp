#include "DesignSystem/ThemeSpring.h"

#include <QtMath>

#include <cmath>

namespace
{

constexpr double swingsToRest = 1.25;

/// A mass let go at 0 and drawn to 1 by a damped spring; time runs from 0 to 1.
template <int dampingPercent>
qreal springPosition(qreal time)
{
    if (time >= 1)
        return 1;
    constexpr double damping = dampingPercent / 100.0;
    const double angle = 2 * M_PI * swingsToRest * time;
    const double decay = std::exp(-damping * angle);
    const double ring = std::sqrt(1 - damping * damping);
    return 1 - decay * (std::cos(ring * angle) + damping / ring * std::sin(ring * angle));
}

} // namespace

double ThemeSpring::response(AnimationLevel level)
{
    switch (level) {
    case AnimationLevel::subtle:
        return 0.459;
    case AnimationLevel::normal:
        return 0.34;
    case AnimationLevel::lively:
        return 0.2448;
    }
    return 0.34;
}

int ThemeSpring::duration(AnimationLevel level)
{
    return qRound(response(level) * swingsToRest * 1000);
}

QEasingCurve ThemeSpring::curve(AnimationLevel level)
{
    QEasingCurve curve;
    switch (level) {
    case AnimationLevel::subtle:
        curve.setCustomType(springPosition<96>);
        break;
    case AnimationLevel::normal:
        curve.setCustomType(springPosition<86>);
        break;
    case AnimationLevel::lively:
        curve.setCustomType(springPosition<76>);
        break;
    }
    return curve;
}
