#pragma once

#include <QDateTime>

/// Calendar arithmetic of the pickers: the Gregorian calendar with weeks from Sunday to Saturday.
namespace DateMath
{

/// The earliest and latest day a picker offers: the years 1 to 9999.
QDate firstDay();
QDate lastDay();

/// The day, held within firstDay() and lastDay().
QDate clamped(QDate day);

/// The Sunday on or before the day.
QDate startOfWeek(QDate day);

/// The same day of the month so many months away, or that month's last day where it is shorter.
QDate monthsAway(QDate day, int months);

/// The moment's time of day on another day, in the moment's own time zone. A time that the clocks skip on
/// that day becomes the same time after the skip.
QDateTime onDay(const QDateTime &moment, QDate day);

/// The moment's day at another time of day, in the moment's own time zone, treated as in onDay().
QDateTime atTime(const QDateTime &moment, QTime time);

} // namespace DateMath
