#pragma once

#include <QString>

/// Text counted as a user counts it: a letter with its accents, or an emoji of several parts, is one.
namespace Graphemes
{
qsizetype count(const QString &text);
/// The first `most` of them.
QString left(const QString &text, qsizetype most);
} // namespace Graphemes
