#pragma once

#include "Models/CalendarEvent.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QTimeZone>

#include <chrono>
#include <expected>
#include <stop_token>

/// What an iCalendar file comes to in this program.
struct ICalendarContents {
    QList<CalendarEvent> events;
    /// Events that repeat, and how many single events come from them.
    qsizetype series = 0;
    qsizetype occurrences = 0;
    /// A sentence for each thing that can't be kept.
    QStringList losses;
};

/// Reads an iCalendar file (RFC 5545) of any origin. An event keeps its UID as its id where that is a UUID,
/// and otherwise gets an id made of it, so that the same event is known again.
///
/// Repeating events become single ones within two years from today. Times in a time zone are told in the zone
/// given; those without stay as they are.
class ICalendarReader
{
    Q_DECLARE_TR_FUNCTIONS(ICalendarReader)

public:
    struct Options {
        QTimeZone zone;
        Timestamp now;
        /// Reading ends with an error after this much work of its own.
        std::chrono::milliseconds maxWork{900};
        /// Ends the reading when nobody waits for it any more.
        std::stop_token stop = {};
    };
    static constexpr qint64 maxBytes = 16 * 1024 * 1024;
    static constexpr qsizetype maxEvents = 50'000;

    static std::expected<ICalendarContents, QString> readFile(const QString &path, const Options &options);
    static std::expected<ICalendarContents, QString> read(QByteArray bytes, const Options &options);
};
