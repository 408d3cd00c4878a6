#include "Features/Calendar/ICalendarFormat.h"

#include <QDateTime>

icaltimetype ICalendarFormat::dateOf(QDate day)
{
    icaltimetype time = icaltime_null_date();
    time.year = day.year();
    time.month = day.month();
    time.day = day.day();
    time.hour = time.minute = time.second = 0;
    return time;
}

icaltimetype ICalendarFormat::utcOf(const QDateTime &moment)
{
    const QDateTime utc = moment.toUTC();
    icaltimetype time = dateOf(utc.date());
    time.is_date = 0;
    time.hour = utc.time().hour();
    time.minute = utc.time().minute();
    time.second = utc.time().second();
    time.zone = icaltimezone_get_utc_timezone();
    return time;
}

QDateTime ICalendarFormat::written(const icaltimetype &time, const QTimeZone &zone)
{
    return {QDate(time.year, time.month, time.day),
            time.is_date ? QTime(12, 0) : QTime(time.hour, time.minute, std::min(time.second, 59)), zone};
}

bool ICalendarFormat::isReadable(const icaltimetype &time)
{
    return time.year >= 1 && time.year <= 9999 && QDate::isValid(time.year, time.month, time.day) &&
           (time.is_date || QTime::isValid(time.hour, time.minute, 0));
}

QString ICalendarFormat::keyOf(const icaltimetype &time)
{
    return QString::fromLatin1(icaltime_as_ical_string(time));
}

icalproperty *ICalendarFormat::first(icalcomponent *component, icalproperty_kind kind)
{
    return icalcomponent_get_first_property(component, kind);
}

QString ICalendarFormat::textOf(icalcomponent *component, icalproperty_kind kind)
{
    icalproperty *const property = first(component, kind);
    const char *const text = property ? icalproperty_get_value_as_string(property) : nullptr;
    if (!text)
        return {};
    const icalvalue *const value = icalproperty_get_value(property);
    const char *const plain = icalvalue_isa(value) == ICAL_TEXT_VALUE ? icalvalue_get_text(value) : text;
    return QString::fromUtf8(plain);
}
