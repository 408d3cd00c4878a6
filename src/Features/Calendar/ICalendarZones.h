#pragma once

#include "Features/Calendar/ICalendarFormat.h"

#include <QHash>

/// The time zone of a time in a calendar file: one that this machine knows, or one that the file describes.
/// One that is neither stands for a time that is the same everywhere.
class ICalendarZone
{
public:
    ICalendarZone() = default;
    explicit ICalendarZone(const QTimeZone &known) : m_known(known) {}
    explicit ICalendarZone(icaltimezone *described) : m_described(described) {}

    bool isValid() const { return m_known.isValid() || m_described; }
    bool operator==(const ICalendarZone &) const = default;

    /// The moment of a time of this zone, as the zone given tells it.
    QDateTime moment(const icaltimetype &time, const QTimeZone &local) const;
    /// How a moment is written in this zone.
    icaltimetype written(const QDateTime &moment, const QTimeZone &local) const;

private:
    QTimeZone m_known;
    icaltimezone *m_described = nullptr;
};

/// The time zones that a calendar file names.
class ICalendarZones
{
public:
    /// Of the calendar whose components are read next.
    void setCalendar(icalcomponent *calendar);
    /// Invalid if the time is in none, or in one that nobody knows.
    ICalendarZone of(icalproperty *property, const icaltimetype &time);
    static bool isNamed(icalproperty *property, const icaltimetype &time);

private:
    ICalendarZone find(const QByteArray &id) const;
    icaltimezone *described(const QByteArray &id) const;

    icalcomponent *m_calendar = nullptr;
    QHash<QByteArray, ICalendarZone> m_found;
};
