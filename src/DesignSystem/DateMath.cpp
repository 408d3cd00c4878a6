#include "DesignSystem/DateMath.h"

#include <algorithm>

namespace
{

QDateTime combined(const QDateTime &like, QDate day, QTime time)
{
    QDateTime result = like;
    result.setDate(day);
    result.setTime(time);
    if (result.isValid() && result.time() == time)
        return result;
    // The clocks skip this time: an hour later exists on every day of every zone but a few, whose skip is
    // a whole day long.
    const QTime later = time.addSecs(60 * 60);
    result = like;
    result.setTime(later);
    result.setDate(later < time ? day.addDays(1) : day);
    return result;
}

} // namespace

namespace DateMath
{

QDate firstDay()
{
    return QDate(1, 1, 1);
}

QDate lastDay()
{
    return QDate(9999, 12, 31);
}

QDate clamped(QDate day)
{
    return day.isValid() ? std::clamp(day, firstDay(), lastDay()) : firstDay();
}

QDate startOfWeek(QDate day)
{
    return day.addDays(-(day.dayOfWeek() % 7));
}

QDate monthsAway(QDate day, int months)
{
    // QDate has no year 0, so a step from the first year backwards would land in the year -1.
    return clamped(day.addMonths(months));
}

QDateTime onDay(const QDateTime &moment, QDate day)
{
    return combined(moment, clamped(day), moment.time());
}

QDateTime atTime(const QDateTime &moment, QTime time)
{
    return combined(moment, moment.date(), time);
}

} // namespace DateMath
