#pragma once

#include "Models/CalendarEvent.h"
#include "Models/TaskItem.h"

#include <QByteArray>
#include <QList>

/// Writes an iCalendar file (RFC 5545): events as they stand on their days, and the tasks that have a due
/// date. Timed events keep their time of day wherever the file is read.
namespace ICalendarWriter
{
/// @param zone tells the days of the events
/// @param now the moment of writing
QByteArray write(const QList<CalendarEvent> &events, const QList<TaskItem> &tasks, const QTimeZone &zone,
                 Timestamp now);
} // namespace ICalendarWriter
