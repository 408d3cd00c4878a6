#pragma once

#include "Models/AppSettings.h"

#include <QVariant>

/// The fields of the settings by their names in the file, such as "inkMode" or "theme.accent", for controls
/// that stand for one field each. An enum is told by its raw text. Lists have ways of their own, such as
/// `AppSettings::setModule`.
namespace SettingFields
{
/// An invalid value if there is no such field.
QVariant value(const AppSettings &settings, QStringView field);
/// False, and nothing changes, if there is no such field or it can't hold the value: numbers are finite and
/// above 0, and no value is taken for one of another type.
bool set(AppSettings &settings, QStringView field, const QVariant &value);
} // namespace SettingFields
