#include "DesignSystem/OVTheme.h"

#include "DesignSystem/ThemeRevision.h"

namespace
{

struct State {
    OVThemeSnapshot snapshot;
    std::optional<AppSettings> settings;
    std::optional<AppearanceMode> tried;
    bool systemDark = false;
};

State &state()
{
    static State value;
    return value;
}

} // namespace

void OVTheme::apply(const AppSettings &settings)
{
    state().settings = settings;
    AppSettings shown = settings;
    shown.appearance = state().tried.value_or(settings.appearance);
    const OVThemeSnapshot next = OVThemeSnapshot::resolved(shown, state().systemDark);
    if (next == state().snapshot)
        return;
    state().snapshot = next;
    ThemeRevision::shared().increment();
}

void OVTheme::setSystemDark(bool dark)
{
    state().systemDark = dark;
    if (const auto settings = state().settings)
        apply(*settings);
}

void OVTheme::tryAppearance(std::optional<AppearanceMode> appearance)
{
    state().tried = appearance;
    if (const auto settings = state().settings)
        apply(*settings);
}

const OVThemeSnapshot &OVTheme::current()
{
    return state().snapshot;
}

OVColors OVTheme::colors()
{
    return OVColors::of(state().snapshot.inkMode, state().snapshot.dark);
}
