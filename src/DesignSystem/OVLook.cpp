#include "DesignSystem/OVLook.h"

#include "DesignSystem/CanvasDescriptor.h"
#include "DesignSystem/OVColors.h"

namespace
{

QList<QColor> groundOf(const OVThemeSnapshot &snapshot, const QColor &plain)
{
    const CanvasDescriptor canvas = canvasDescriptor(snapshot.canvas);
    const QList<QColor> &colors = snapshot.dark ? canvas.dark : canvas.light;
    if (colors.isEmpty())
        return {plain, plain, plain};
    // Of two colours the upper one holds on to the middle.
    return {colors.first(), colors.at((colors.size() - 1) / 2), colors.last()};
}

} // namespace

OVLook OVLook::of(const OVThemeSnapshot &snapshot)
{
    const OVColors colors = OVColors::of(snapshot.inkMode, snapshot.dark);
    return {.ground = groundOf(snapshot, colors.canvas),
            .sidebar = colors.sidebar,
            .surface = colors.surface,
            .hover = colors.hover,
            .border = colors.border,
            .borderStrong = colors.borderStrong,
            .ink = colors.ink,
            .inkTertiary = colors.inkTertiary,
            .accent = snapshot.accentColor,
            .cornerScale = snapshot.cornerScale};
}

QList<OVLook> OVLook::possible(const AppSettings &settings)
{
    QList<OVLook> looks{of(OVThemeSnapshot::resolved(settings, false))};
    if (const OVLook other = of(OVThemeSnapshot::resolved(settings, true)); other != looks.first())
        looks.append(other);
    return looks;
}
