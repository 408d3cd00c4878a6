#include "Features/Calendar/ICalendarZones.h"

#include <QDateTime>

#include <algorithm>

namespace
{
/// Describes the past of a zone change by change; a real one has some dozens.
constexpr int maxObservances = 500;

const char *idOf(icalproperty *property)
{
    const icalparameter *const parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    return parameter ? icalparameter_get_tzid(parameter) : nullptr;
}

/// Whether the library works it out soon: it goes from change to change up to our time.
bool isPlain(icalcomponent *zone)
{
    int count = 0;
    for (auto it = icalcomponent_begin_component(zone, ICAL_ANY_COMPONENT); icalcompiter_deref(&it);
         icalcompiter_next(&it)) {
        icalcomponent *const observance = icalcompiter_deref(&it);
        if (++count > maxObservances ||
            icalcomponent_count_properties(observance, ICAL_RDATE_PROPERTY) > maxObservances ||
            icalcomponent_count_properties(observance, ICAL_RRULE_PROPERTY) > 1)
            return false;
        icalproperty *const rule = icalcomponent_get_first_property(observance, ICAL_RRULE_PROPERTY);
        if (rule && icalproperty_get_rrule(rule).freq != ICAL_YEARLY_RECURRENCE)
            return false;
    }
    return count > 0;
}
} // namespace

QDateTime ICalendarZone::moment(const icaltimetype &time, const QTimeZone &local) const
{
    if (time.is_date || !isValid())
        return ICalendarFormat::written(time, local);
    if (!m_described)
        return ICalendarFormat::written(time, m_known).toTimeZone(local);
    icaltimetype there = time;
    int isDaylight = 0;
    const int offset = icaltimezone_get_utc_offset(m_described, &there, &isDaylight);
    return ICalendarFormat::written(time, QTimeZone::utc()).addSecs(-offset).toTimeZone(local);
}

icaltimetype ICalendarZone::written(const QDateTime &moment, const QTimeZone &local) const
{
    QDateTime there = moment.toTimeZone(m_known.isValid() ? m_known : local);
    if (m_described) {
        icaltimetype utc = ICalendarFormat::utcOf(moment);
        int isDaylight = 0;
        there =
            moment.toUTC().addSecs(icaltimezone_get_utc_offset_of_utc_time(m_described, &utc, &isDaylight));
    }
    icaltimetype time = ICalendarFormat::utcOf(QDateTime(there.date(), there.time(), QTimeZone::utc()));
    time.zone = m_known == QTimeZone::utc() ? time.zone : nullptr;
    return time;
}

void ICalendarZones::setCalendar(icalcomponent *calendar)
{
    m_calendar = calendar;
    m_found.clear();
}

bool ICalendarZones::isNamed(icalproperty *property, const icaltimetype &time)
{
    return !time.is_date && !icaltime_is_utc(time) && idOf(property);
}

ICalendarZone ICalendarZones::of(icalproperty *property, const icaltimetype &time)
{
    if (!time.is_date && icaltime_is_utc(time))
        return ICalendarZone(QTimeZone::utc());
    if (!isNamed(property, time))
        return {};
    const QByteArray id = idOf(property);
    auto found = m_found.find(id);
    if (found == m_found.end())
        found = m_found.insert(id, find(id));
    return *found;
}

ICalendarZone ICalendarZones::find(const QByteArray &id) const
{
    // Some programs put words of their own before the name. Any word makes a time zone by itself.
    const QList<QByteArray> parts = id.split('/');
    const QByteArray last = parts.size() > 2 ? parts.at(parts.size() - 2) + '/' + parts.last() : QByteArray();
    for (const QByteArray &name : {id, QTimeZone::windowsIdToDefaultIanaId(id), last})
        if (QTimeZone::isTimeZoneIdAvailable(name))
            return ICalendarZone(QTimeZone(name));
    icaltimezone *const zone = described(id);
    return zone ? ICalendarZone(zone) : ICalendarZone();
}

icaltimezone *ICalendarZones::described(const QByteArray &id) const
{
    icaltimezone *const zone = icalcomponent_get_timezone(m_calendar, id.constData());
    icalcomponent *const component = zone ? icaltimezone_get_component(zone) : nullptr;
    return component && isPlain(component) ? zone : nullptr;
}
