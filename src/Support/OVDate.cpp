#include "Support/OVDate.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdlib>

namespace
{
QString english(QDate day, QLatin1String pattern)
{
    return QLocale::c().toString(day, QString(pattern));
}
} // namespace

QDate OVDate::day(Timestamp moment, const QTimeZone &zone)
{
    return toDateTime(moment, zone).date();
}

Timestamp OVDate::startOfDay(QDate day, const QTimeZone &zone)
{
    QDateTime start = day.startOfDay(zone);
    for (QDate next = day.addDays(1); !start.isValid() && next.isValid(); next = next.addDays(1))
        start = next.startOfDay(zone);
    // Where the clock is set back over midnight, midnight comes twice and Qt gives the second one.
    const int offsetBefore = zone.offsetFromUtc(start.addSecs(-12 * 60 * 60));
    const QDateTime first = QDateTime(day, QTime(0, 0), Qt::UTC).addSecs(-offsetBefore).toTimeZone(zone);
    return toTimestamp(first < start && first.date() == day ? first : start);
}

QDate OVDate::startOfWeek(QDate day)
{
    return day.addDays(-(day.dayOfWeek() % 7));
}

QDate OVDate::endOfWeek(QDate day)
{
    return startOfWeek(day).addDays(6);
}

QDate OVDate::startOfMonth(QDate day)
{
    return {day.year(), day.month(), 1};
}

QDate OVDate::endOfMonth(QDate day)
{
    return {day.year(), day.month(), day.daysInMonth()};
}

QList<QDate> OVDate::days(QDate from, QDate to)
{
    QList<QDate> all;
    for (QDate day = from; day <= to; day = day.addDays(1))
        all.append(day);
    return all;
}

QString OVDate::relative(QDate day, QDate today)
{
    const qint64 days = today.daysTo(day);
    if (days == 0)
        return QCoreApplication::translate("OVDate", "Today");
    if (days == -1)
        return QCoreApplication::translate("OVDate", "Yesterday");
    if (days == 1)
        return QCoreApplication::translate("OVDate", "Tomorrow");
    if (std::abs(days) > 6)
        return mediumYear(day);
    if (days < 1)
        return QCoreApplication::translate("OVDate", "%1 days ago").arg(-days);
    return QCoreApplication::translate("OVDate", "in %1 days").arg(days);
}

QString OVDate::relative(Timestamp moment, Timestamp now, const QTimeZone &zone)
{
    return relative(day(moment, zone), day(now, zone));
}

QString OVDate::dayKey(QDate day)
{
    return day.toString(Qt::ISODate);
}

QString OVDate::dayKey(Timestamp moment, const QTimeZone &zone)
{
    return dayKey(day(moment, zone));
}

std::optional<QDate> OVDate::parseDayKey(QStringView key)
{
    // The reader of Qt takes other separators and what follows the day as well.
    const QDate found = QDate::fromString(key, Qt::ISODate);
    if (!found.isValid() || dayKey(found) != key)
        return std::nullopt;
    return found;
}

QString OVDate::medium(QDate day)
{
    return english(day, QLatin1String("MMM d"));
}

QString OVDate::mediumYear(QDate day)
{
    return english(day, QLatin1String("MMM d, yyyy"));
}

QString OVDate::weekdayShort(QDate day)
{
    return english(day, QLatin1String("d ddd"));
}

QString OVDate::weekdayNarrow(QDate day)
{
    return weekdayLong(day).left(1);
}

QString OVDate::weekdayLong(QDate day)
{
    return english(day, QLatin1String("dddd"));
}

QString OVDate::weekdayLongDay(QDate day)
{
    return english(day, QLatin1String("ddd, MMM d"));
}

QString OVDate::longDate(QDate day)
{
    return english(day, QLatin1String("dddd, MMMM d, yyyy"));
}

QString OVDate::monthYear(QDate day)
{
    return english(day, QLatin1String("MMMM yyyy"));
}

QString OVDate::dayNumber(QDate day)
{
    return QString::number(day.day());
}
