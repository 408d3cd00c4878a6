#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QUuid>

#include <optional>

enum class EventKind { event, deadline, reminder };

template <>
struct EnumTable<EventKind> {
    static constexpr auto cases = std::to_array<EnumCase<EventKind>>({
        {EventKind::event, "event", QT_TRANSLATE_NOOP("EnumLabel", "Event")},
        {EventKind::deadline, "deadline", QT_TRANSLATE_NOOP("EnumLabel", "Deadline")},
        {EventKind::reminder, "reminder", QT_TRANSLATE_NOOP("EnumLabel", "Reminder")},
    });
};

/// One entry of the calendar.
struct CalendarEvent {
    QUuid id;
    QString title;
    /// The day of the event.
    Timestamp date;
    /// Minutes after midnight; nothing for an all-day entry.
    std::optional<qint64> timeMinutes;
    EventKind kind = EventKind::event;
    QString notes;
    Timestamp createdDate;

    bool operator==(const CalendarEvent &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &CalendarEvent::id},
                          Field{"title", &CalendarEvent::title},
                          Field{"date", &CalendarEvent::date},
                          Field{"timeMinutes", &CalendarEvent::timeMinutes},
                          Field{"kind", &CalendarEvent::kind},
                          Field{"notes", &CalendarEvent::notes},
                          Field{"createdDate", &CalendarEvent::createdDate}};
    }
};
