#pragma once

#include "Foundation/Timestamp.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

/// The one calendar of the program: Gregorian, in the time zone given, with weeks from Sunday to Saturday
/// whatever the locale says. A moment becomes a calendar day by `day`, all arithmetic is done on days, and a
/// day becomes a moment again by `startOfDay`. Labels are in English.
namespace OVDate
{
/// The calendar day of this moment.
QDate day(Timestamp moment, const QTimeZone &zone);
/// The first moment of the day, which isn't midnight where the clock jumps over it. A day that the time zone
/// left out altogether starts with the next one.
Timestamp startOfDay(QDate day, const QTimeZone &zone);

/// The Sunday and the Saturday of the day's week.
QDate startOfWeek(QDate day);
QDate endOfWeek(QDate day);
QDate startOfMonth(QDate day);
/// The last day of the month.
QDate endOfMonth(QDate day);
/// All days from the first to the last, both included; none if the first lies after the last.
QList<QDate> days(QDate from, QDate to);

/// "Today", "Yesterday", "Tomorrow", "3 days ago", "in 3 days", or `mediumYear` from a week away on.
QString relative(QDate day, QDate today);
QString relative(Timestamp moment, Timestamp now, const QTimeZone &zone);

/// The text that stands for a day in files: "2026-03-09".
QString dayKey(QDate day);
QString dayKey(Timestamp moment, const QTimeZone &zone);
/// The day with exactly this key; nothing for any other text.
std::optional<QDate> parseDayKey(QStringView key);

/// "Mar 9"
QString medium(QDate day);
/// "Mar 9, 2026"
QString mediumYear(QDate day);
/// "9 Mon": American English puts the number first where a weekday has no month beside it.
QString weekdayShort(QDate day);
/// "M"
QString weekdayNarrow(QDate day);
/// "Monday"
QString weekdayLong(QDate day);
/// "Mon, Mar 9"
QString weekdayLongDay(QDate day);
/// "Monday, March 9, 2026"
QString longDate(QDate day);
/// "March 2026"
QString monthYear(QDate day);
/// "9"
QString dayNumber(QDate day);
} // namespace OVDate
