#pragma once

#include "Models/ThemeSettings.h"

#include <QStringList>

/// The families that the program sets its text in.
namespace OVFonts
{

/// The families of one design, the wished one first and then what other machines have in its place.
QStringList families(FontChoice design);

/// The first installed family of a design. The rest of its list, colour emoji included, stands in for single
/// characters that the family lacks.
QString family(FontChoice design);

/// The family of colour emoji, for texts that are an emoji alone.
QString emojiFamily();

} // namespace OVFonts
