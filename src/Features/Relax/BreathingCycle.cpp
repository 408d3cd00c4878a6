#include "Features/Relax/BreathingCycle.h"

#include <cmath>
#include <numbers>

namespace
{
constexpr double smallest = 0.6;

/// Slow at both ends.
double eased(double share)
{
    return 0.5 - 0.5 * std::cos(std::numbers::pi * share);
}
} // namespace

BreathingCycle::Moment BreathingCycle::at(double seconds)
{
    constexpr double inhaled = 4;
    constexpr double held = inhaled + 7;
    const double moment = std::fmod(std::fmax(0, seconds), length);
    if (moment < inhaled)
        return {Phase::in, smallest + (1 - smallest) * eased(moment / inhaled),
                int(std::ceil(inhaled - moment))};
    if (moment < held)
        return {Phase::hold, 1, int(std::ceil(held - moment))};
    return {Phase::out, 1 - (1 - smallest) * eased((moment - held) / (length - held)),
            int(std::ceil(length - moment))};
}
