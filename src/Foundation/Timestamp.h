#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <array>
#include <chrono>
#include <optional>
#include <string_view>

/// A moment in UTC, in milliseconds.
using Timestamp = std::chrono::sys_time<std::chrono::milliseconds>;

/// Characters of the file form, such as 2026-03-01T09:30:00Z.
inline constexpr std::size_t isoTimestampLength = 20;

/// The file form with whole seconds. Moments outside the years 1 to 9999 are held at those ends, since the
/// form has room for four digits only.
std::array<char, isoTimestampLength> isoTimestamp(Timestamp moment);

/// Reads the file form; nothing for any other text, fractions of a second and offsets included.
std::optional<Timestamp> parseIsoTimestamp(std::string_view text);

/// Seconds since 1970 with their fraction, as records keep their sort order.
double secondsSince1970(Timestamp moment);

/// The moment as a calendar in this time zone tells it, and back.
QDateTime toDateTime(Timestamp moment, const QTimeZone &zone);
Timestamp toTimestamp(const QDateTime &dateTime);
