#pragma once

#include "Features/Calendar/ICalendarReader.h"
#include "Features/Calendar/ICalendarSeries.h"

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
        qsizetype details = 0;
        qsizetype otherKinds = 0;
        qsizetype cancelled = 0;
        qsizetype unreadable = 0;
        qsizetype unknownZones = 0;
        qsizetype longAgo = 0;
        qsizetype farAway = 0;
        qsizetype changedRests = 0;
        qsizetype severalDays = 0;
    };

    ICalendarEvents(const ICalendarReader::Options &options, const ReadingLimit &limit);

    /// False if there is too much of it for the time, or for a workspace.
    bool add(icalcomponent *calendar);

    QList<CalendarEvent> events;
    qsizetype series = 0;
    qsizetype occurrences = 0;
    Losses losses;
    /// Rules of repetition that can't be followed.
    qsizetype oddRules() const { return m_series.oddRules(); }
    /// Whether the last `add` failed for the length of the texts.
    bool hasTooMuchText = false;

private:
    /// An event as it stands in the file.
    struct Source : ICalendarSeries::Event {
        CalendarEvent event;
        /// Of an all-day event.
        int days = 1;
    };

    bool addEvent(icalcomponent *component);
    bool addSeries(const Source &source);
    bool addOn(const Source &source, const icaltimetype &start, const QString &key);
    std::optional<Source> read(icalcomponent *component);
    int daysOf(const Source &source) const;
    void countLosses(const Source &source);

    const ICalendarReader::Options &m_options;
    const ReadingLimit &m_limit;
    QDate m_first;
    QDate m_last;
    ICalendarZones m_zones;
    ICalendarSeries m_series;
    QSet<QUuid> m_ids;
    qsizetype m_textLength = 0;
};
