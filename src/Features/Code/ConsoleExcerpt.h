#pragma once

#include <QString>

/// What a console shows of an output: all of a short one, of a long one its beginning and its end.
namespace ConsoleExcerpt
{
/// @param limit about how many units are shown
QString of(const QString &output, qsizetype limit);

/// The lines that stand in the place of so many characters.
QString gap(qint64 omitted);
} // namespace ConsoleExcerpt
