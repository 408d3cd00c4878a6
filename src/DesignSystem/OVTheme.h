#pragma once

#include "DesignSystem/OVColors.h"
#include "DesignSystem/OVThemeSnapshot.h"

#include <optional>

/// The appearance of the whole program. The application calls `apply` at its start and after each change of
/// the settings; everything else only reads. Main thread only.
class OVTheme
{
public:
    /// Resolves the settings; `ThemeRevision` goes up if anything came out differently.
    static void apply(const AppSettings &settings);
    /// Tells whether the system prefers dark windows; settings that follow the system are resolved anew.
    static void setSystemDark(bool dark);
    /// Shows an appearance that is being considered in place of the one in the settings; nothing ends that.
    static void tryAppearance(std::optional<AppearanceMode> appearance);

    static const OVThemeSnapshot &current();
    /// The named colours of the current appearance.
    static OVColors colors();
};
