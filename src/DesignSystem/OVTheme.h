#pragma once

#include "DesignSystem/OVColors.h"
#include "DesignSystem/OVThemeSnapshot.h"

/// The appearance of the whole program. The application calls `apply` at its start and after each change of
/// the settings; everything else only reads. Main thread only.
class OVTheme
{
public:
    /// Resolves the settings; `ThemeRevision` goes up if anything came out differently.
    static void apply(const AppSettings &settings);
    /// Tells whether the system prefers dark windows; settings that follow the system are resolved anew.
    static void setSystemDark(bool dark);

    static const OVThemeSnapshot &current();
    /// The named colours of the current appearance.
    static OVColors colors();
};
