#pragma once

#include "Models/ThemeSettings.h"

/// Writes the preset's accent, canvas, font, corners, density and animation, and remembers the preset itself;
/// every other choice stays.
void applyThemePreset(ThemePreset preset, ThemeSettings &settings);
