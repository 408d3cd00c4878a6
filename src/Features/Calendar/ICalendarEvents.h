#pragma once

#include "Features/Calendar/ICalendarFormat.h"
#include "Features/Calendar/ICalendarReader.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QSet>

/// Makes events of the components of a file, and counts what of them can't be kept.
class ICalendarEvents
{
public:
    struct Losses {
        qsizetype ends = 0;
        qsizetype alarms = 0;
        qsizetype guests = 0;
        qsizetype attachments = 0;
        qsizetype otherKinds = 0;
        qsizetype cancelled = 0;
        qsizetype unreadable = 0;
        qsizetype unknownZones = 0;
        qsizetype tooOften = 0;
        qsizetype farAway = 0;
        qsizetype severalDays = 0;
    };

    ICalendarEvents(const ICalendarReader::Options &options, const QDeadlineTimer &deadline);

    /// False if there is too much of it for the time, or for a workspace.
    bool add(icalcomponent *calendar);

    QList<CalendarEvent> events;
    qsizetype series = 0;
    qsizetype occurrences = 0;
    Losses losses;
    /// Whether the last `add` failed for the length of the texts.
    bool hasTooMuchText = false;

private:
    /// An event as it stands in the file.
    struct Source {
        icalcomponent *component = nullptr;
        QString uid;
        icaltimetype start;
        /// Invalid for a time that is the same everywhere.
        QTimeZone zone;
        CalendarEvent event;
        /// Of an all-day event.
        int days = 1;
    };

    void noteReplaced(icalcomponent *component);
    bool addEvent(icalcomponent *component);
    bool addSeries(const Source &source);
    bool addOn(const Source &source, const icaltimetype &start, const QString &key);
    std::optional<Source> read(icalcomponent *component);
    int daysOf(const Source &source) const;
    void countLosses(const Source &source);
    /// The starts that a rule gives within two years; nothing if that takes too long.
    std::optional<QList<icaltimetype>> repeated(const Source &source, icalproperty *rule);
    QSet<QString> exceptions(const Source &source);
    QTimeZone zoneOf(icalproperty *property, const icaltimetype &time);
    icaltimetype inZoneOf(const Source &source, const icaltimetype &time) const;

    const ICalendarReader::Options &m_options;
    const QDeadlineTimer &m_deadline;
    QDate m_first;
    QDate m_last;
    QHash<QByteArray, QTimeZone> m_zones;
    QSet<QUuid> m_ids;
    qsizetype m_textLength = 0;
    /// Occurrences that an event of its own replaces: UID and start.
    QSet<QString> m_replaced;
};
