#pragma once

#include "Features/Calendar/ICalendarZones.h"
#include "Features/Calendar/ReadingLimit.h"

#include <QSet>

#include <optional>

/// Works out when a repeating event happens.
class ICalendarSeries
{
public:
    struct Event {
        icalcomponent *component = nullptr;
        QString uid;
        icaltimetype start = icaltime_null_time();
        ICalendarZone zone;
    };
    /// The days that rules are followed on.
    struct Reach {
        QDate first;
        QDate last;
        /// Of times that are the same everywhere.
        QTimeZone local;
    };

    ICalendarSeries(const Reach &reach, ICalendarZones &zones, const ReadingLimit &limit)
        : m_reach(reach), m_zones(zones), m_limit(limit)
    {
    }

    /// Has to know all components of a calendar before the first series is worked out.
    void noteReplaced(icalcomponent *component);
    /// The starts within reach, and at least one beyond it where there are more; without the exceptions and
    /// what another event replaces. Nothing if that takes too long or is too much.
    std::optional<QList<icaltimetype>> startsOf(const Event &event);
    /// Rules that can't be followed.
    qsizetype oddRules() const { return m_oddRules; }

private:
    std::optional<QList<icaltimetype>> repeated(const Event &event, icalrecurrencetype rule);
    /// The same for all rules of a kind.
    std::optional<QList<icaltimetype>> repeated(const Event &event, icalproperty_kind kind);
    /// The end of a rule as its iteration compares it.
    icaltimetype endOf(const Event &event, icaltimetype until) const;
    std::optional<QSet<QString>> exceptions(const Event &event);
    /// Tells a start from others, whatever the time zone it is written in.
    QString momentKey(const icaltimetype &start, const ICalendarZone &zone) const;
    icaltimetype inZoneOf(const Event &event, const icaltimetype &time, const ICalendarZone &zone) const;

    Reach m_reach;
    ICalendarZones &m_zones;
    const ReadingLimit &m_limit;
    /// UID and start.
    QSet<QString> m_replaced;
    qsizetype m_oddRules = 0;
};
