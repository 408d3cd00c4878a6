#pragma once

#include "Models/ThemeSettings.h"

#include <QEasingCurve>

/// The spring by which things appear and settle.
namespace ThemeSpring
{

/// Seconds of one swing.
double response(AnimationLevel level);
/// How long the spring takes to come to rest, in milliseconds.
int duration(AnimationLevel level);
/// The way there, for an animation of that duration.
QEasingCurve curve(AnimationLevel level);

} // namespace ThemeSpring
