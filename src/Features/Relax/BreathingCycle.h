#pragma once

#include "Foundation/EnumTable.h"

/// The 4-7-8 pattern of breathing.
namespace BreathingCycle
{
enum class Phase { in, hold, out };

struct Moment {
    Phase phase = Phase::in;
    /// Size of the circle, from 0.6 to 1.
    double scale = 0.6;
    /// Whole seconds to the next phase, at least 1.
    int secondsLeft = 4;

    bool operator==(const Moment &) const = default;
};

/// Seconds of a whole cycle.
inline constexpr double length = 4 + 7 + 8;

/// What the guide shows so many seconds after its beginning.
Moment at(double seconds);
} // namespace BreathingCycle

template <>
struct EnumTable<BreathingCycle::Phase> {
    static constexpr auto cases = std::to_array<EnumCase<BreathingCycle::Phase>>({
        {BreathingCycle::Phase::in, "in", QT_TRANSLATE_NOOP("EnumLabel", "Breathe in")},
        {BreathingCycle::Phase::hold, "hold", QT_TRANSLATE_NOOP("EnumLabel", "Hold")},
        {BreathingCycle::Phase::out, "out", QT_TRANSLATE_NOOP("EnumLabel", "Breathe out")},
    });
};
