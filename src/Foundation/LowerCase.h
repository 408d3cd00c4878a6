#pragma once

#include <QString>

/// Lower case for texts that are looked through by the thousand.
namespace LowerCase
{
/// Appends what `text.toLower()` gives, without asking for memory as long as the text has room for it.
/// Half of a surrogate pair alone may come out differently.
void append(QString &to, QStringView text);
} // namespace LowerCase
