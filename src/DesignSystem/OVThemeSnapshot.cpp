#include "DesignSystem/OVThemeSnapshot.h"

#include "DesignSystem/AccentColors.h"

#include <algorithm>

namespace
{

double cornerScaleOf(CornerStyle corner)
{
    switch (corner) {
    case CornerStyle::sharp:
        return 0.45;
    case CornerStyle::soft:
        return 1.0;
    case CornerStyle::round:
        return 1.75;
    }
    return 1.0;
}

double densityScaleOf(DensityStyle density)
{
    switch (density) {
    case DensityStyle::cozy:
        return 0.88;
    case DensityStyle::comfortable:
        return 1.0;
    case DensityStyle::spacious:
        return 1.16;
    }
    return 1.0;
}

bool isDark(const AppSettings &settings, bool systemDark)
{
    if (settings.inkMode)
        return false;
    return settings.appearance == AppearanceMode::system ? systemDark
                                                         : settings.appearance == AppearanceMode::dark;
}

void overrideForInk(OVThemeSnapshot &snapshot)
{
    snapshot.accent = AccentPalette::mono;
    snapshot.canvas = CanvasStyle::none;
    snapshot.fontDesign = FontChoice::serif;
    snapshot.fontScale = std::min(snapshot.fontScale * 1.06, 1.5);
    snapshot.cornerScale = 0.5;
    snapshot.densityScale = std::max(snapshot.densityScale, 1.0);
    snapshot.glassySurfaces = false;
    snapshot.animatedBackground = false;
    snapshot.motionEnabled = false;
    snapshot.inkMode = true;
}

} // namespace

OVThemeSnapshot OVThemeSnapshot::resolved(const AppSettings &settings, bool systemDark)
{
    const ThemeSettings &theme = settings.theme;
    OVThemeSnapshot snapshot;
    snapshot.accent = theme.accent;
    snapshot.canvas = theme.canvas;
    snapshot.fontDesign = theme.font;
    snapshot.fontScale = std::clamp(theme.fontScale, 0.8, 1.4);
    snapshot.cornerScale = cornerScaleOf(theme.corner);
    snapshot.densityScale = densityScaleOf(theme.density);
    snapshot.navigation = theme.navigation;
    snapshot.accentIcons = theme.accentIcons;
    snapshot.glassySurfaces = theme.glassySurfaces;
    snapshot.animatedBackground = theme.animatedBackground;
    snapshot.showQuote = theme.showQuote;
    snapshot.tabBarLabels = theme.tabBarLabels;
    snapshot.compactSidebar = theme.compactSidebar;
    snapshot.motionEnabled = !settings.reducedMotion;
    snapshot.animation = theme.animation;
    snapshot.dark = isDark(settings, systemDark);
    if (settings.inkMode)
        overrideForInk(snapshot);
    const AccentColors colors = accentColors(snapshot.accent);
    snapshot.accentColor = snapshot.dark ? colors.dark : colors.light;
    snapshot.onAccent = snapshot.dark ? colors.onDark : colors.onLight;
    return snapshot;
}
