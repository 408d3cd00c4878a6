#include "Features/Calendar/ICalendarSeries.h"

#include "Features/Calendar/ICalendarReader.h"

#include <QDateTime>

using namespace ICalendarFormat;

namespace
{
constexpr qsizetype maxStarts = ICalendarReader::maxEvents;
/// An event that repeats within the hour fills thousands of days with itself.
constexpr auto mostOften = ICAL_DAILY_RECURRENCE;
} // namespace

void ICalendarSeries::noteReplaced(icalcomponent *component)
{
    icalproperty *const replaced = first(component, ICAL_RECURRENCEID_PROPERTY);
    if (!replaced)
        return;
    const icaltimetype start = icalproperty_get_recurrenceid(replaced);
    if (isReadable(start))
        m_replaced.insert(textOf(component, ICAL_UID_PROPERTY).trimmed() + u'/' +
                          momentKey(start, m_zones.of(replaced, start)));
}

std::optional<QList<icaltimetype>> ICalendarSeries::startsOf(const Event &event)
{
    const auto repeats = repeated(event, ICAL_RRULE_PROPERTY);
    auto done = exceptions(event);
    if (!repeats || !done)
        return std::nullopt;
    QList<icaltimetype> candidates = QList<icaltimetype>{event.start} + *repeats;
    for (icalproperty *date = first(event.component, ICAL_RDATE_PROPERTY); date;
         date = icalcomponent_get_next_property(event.component, ICAL_RDATE_PROPERTY)) {
        const icaldatetimeperiodtype more = icalproperty_get_rdate(date);
        const icaltimetype start = icaltime_is_null_time(more.time) ? more.period.start : more.time;
        if (isReadable(start))
            candidates.append(inZoneOf(event, start, m_zones.of(date, start)));
    }
    QList<icaltimetype> starts;
    for (const icaltimetype &start : std::as_const(candidates)) {
        if (m_limit.isReached() || starts.size() > maxStarts)
            return std::nullopt;
        const QString key = momentKey(start, event.zone);
        const QString day = keyOf(start).first(8);
        const QString replaced = event.uid + u'/';
        if (done->contains(key) || done->contains(day) || m_replaced.contains(replaced + key) ||
            m_replaced.contains(replaced + day))
            continue;
        done->insert(key);
        starts.append(start);
    }
    return starts;
}

std::optional<QList<icaltimetype>> ICalendarSeries::repeated(const Event &event, icalproperty_kind kind)
{
    QList<icaltimetype> starts;
    for (icalproperty *rule = first(event.component, kind); rule;
         rule = icalcomponent_get_next_property(event.component, kind)) {
        const auto more = repeated(event, kind == ICAL_RRULE_PROPERTY ? icalproperty_get_rrule(rule)
                                                                      : icalproperty_get_exrule(rule));
        if (!more || starts.size() + more->size() > maxStarts)
            return std::nullopt;
        starts.append(*more);
    }
    return starts;
}

std::optional<QList<icaltimetype>> ICalendarSeries::repeated(const Event &event, icalrecurrencetype rule)
{
    QList<icaltimetype> starts;
    if (rule.freq < mostOften || rule.freq > ICAL_YEARLY_RECURRENCE) {
        ++m_oddRules;
        return starts;
    }
    if (!icaltime_is_null_time(rule.until))
        rule.until = endOf(event, rule.until);
    const Repetition repetition(icalrecur_iterator_new(rule, event.start));
    if (!repetition) {
        ++m_oddRules;
        return starts;
    }
    const icaltimetype from = dateOf(m_reach.first);
    if (rule.count == 0 && icaltime_compare_date_only(event.start, from) < 0) {
        icaltimetype jump = event.start;
        jump.year = from.year;
        jump.month = from.month;
        jump.day = from.day;
        icalrecur_iterator_set_start(repetition.get(), jump);
    }
    // One more than is added tells that there are more.
    const icaltimetype end = dateOf(m_reach.last);
    for (;;) {
        if (m_limit.isReached() || starts.size() > maxStarts)
            return std::nullopt;
        const icaltimetype next = icalrecur_iterator_next(repetition.get());
        if (icaltime_is_null_time(next))
            return starts;
        if (icaltime_compare_date_only(next, from) >= 0)
            starts.append(next);
        if (icaltime_compare_date_only(next, end) > 0)
            return starts;
    }
}

icaltimetype ICalendarSeries::endOf(const Event &event, icaltimetype until) const
{
    if (until.is_date && !event.start.is_date) {
        // The last day counts whole.
        until.is_date = 0;
        until.hour = 23;
        until.minute = until.second = 59;
        return until;
    }
    if (event.start.is_date && !until.is_date && icaltime_is_utc(until)) {
        // Midnight of the last day, or its last second, in the time zone of the program that wrote it.
        const QDateTime utc(QDate(until.year, until.month, until.day),
                            QTime(until.hour, until.minute, qMin(until.second, 59)), Qt::UTC);
        const bool isEdge =
            (until.hour == 0 && until.minute == 0) || (until.hour == 23 && until.minute == 59);
        return dateOf(isEdge ? utc.date() : utc.toTimeZone(m_reach.local).date());
    }
    return icaltime_is_utc(until) ? inZoneOf(event, until, ICalendarZone(QTimeZone::utc())) : until;
}

std::optional<QSet<QString>> ICalendarSeries::exceptions(const Event &event)
{
    QSet<QString> keys;
    for (icalproperty *date = first(event.component, ICAL_EXDATE_PROPERTY); date;
         date = icalcomponent_get_next_property(event.component, ICAL_EXDATE_PROPERTY)) {
        const icaltimetype time = icalproperty_get_exdate(date);
        if (isReadable(time))
            keys.insert(momentKey(time, m_zones.of(date, time)));
    }
    const auto excluded = repeated(event, ICAL_EXRULE_PROPERTY);
    if (!excluded)
        return std::nullopt;
    for (const icaltimetype &start : *excluded)
        keys.insert(momentKey(start, event.zone));
    return keys;
}

QString ICalendarSeries::momentKey(const icaltimetype &start, const ICalendarZone &zone) const
{
    return start.is_date ? keyOf(start)
                         : u'@' + QString::number(zone.moment(start, m_reach.local).toSecsSinceEpoch());
}

icaltimetype ICalendarSeries::inZoneOf(const Event &event, const icaltimetype &time,
                                       const ICalendarZone &zone) const
{
    if (time.is_date || event.start.is_date || zone == event.zone || !isReadable(time))
        return time;
    return event.zone.written(zone.moment(time, m_reach.local), m_reach.local);
}
