#pragma once

#include "Features/Settings/SettingChoice.h"

/// The values to choose from for a field of the settings.
namespace SettingRows
{
/// Pictures show what a choice looks like without ink mode, which would make them all the same.
/// @param field see `SettingFields`, or "hiddenModules", of which any number of choices can be selected
/// @param dark whether the window is drawn dark
/// @return nothing for a field without choices
QList<SettingChoice> of(QStringView field, const AppSettings &settings, bool dark);
} // namespace SettingRows
