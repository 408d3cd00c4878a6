#pragma once

#include "Features/Calendar/ICalendarFormat.h"
#include "Features/Calendar/ReadingLimit.h"

#include <QByteArray>

#include <expected>

/// Parses the lines of a file, within bounds that hostile files don't keep.
namespace ICalendarLines
{
enum class Failure { notACalendar, cutOff, damaged, tooSlow };

struct Calendars {
    /// The calendars of the file below one component.
    ICalendarFormat::Component root;
    /// Lines that were left out because of their length, such as pictures.
    qsizetype longLines = 0;
};

std::expected<Calendars, Failure> parse(const QByteArray &bytes, const ReadingLimit &limit);
} // namespace ICalendarLines
