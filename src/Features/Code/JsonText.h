#pragma once

#include <QString>

#include <expected>

/// Checks JSON that a user has written, and lays it out.
namespace JsonText
{
/// The same value with sorted keys and two blanks a level. Numbers and strings stay as they are written, and
/// of equal keys none is lost. Any kind of value may stand alone.
/// On failure tells what is wrong and where, in one sentence.
std::expected<QString, QString> pretty(QStringView text);
} // namespace JsonText
