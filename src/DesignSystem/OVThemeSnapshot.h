#pragma once

#include "Models/AppSettings.h"

#include <QColor>

/// The resolved appearance that everything on the screen is drawn from.
struct OVThemeSnapshot {
    AccentPalette accent = AccentPalette::mono;
    CanvasStyle canvas = CanvasStyle::none;
    FontChoice fontDesign = FontChoice::system;
    double fontScale = 1.0;
    double cornerScale = 1.0;
    double densityScale = 1.0;
    NavigationStyle navigation = NavigationStyle::sidebar;
    bool accentIcons = false;
    bool glassySurfaces = true;
    bool animatedBackground = true;
    bool showQuote = true;
    bool tabBarLabels = true;
    bool compactSidebar = false;
    bool motionEnabled = true;
    AnimationLevel animation = AnimationLevel::normal;
    QColor accentColor{0x37, 0x35, 0x2F};
    QColor onAccent{Qt::white};
    bool inkMode = false;
    /// Whether the window is drawn dark; ink mode is always light.
    bool dark = false;

    bool operator==(const OVThemeSnapshot &) const = default;

    /// The appearance for these settings on a system that is itself dark or light.
    static OVThemeSnapshot resolved(const AppSettings &settings, bool systemDark);
};
