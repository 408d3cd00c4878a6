#include "Features/Calendar/ICalendarWriter.h"

#include "Features/Calendar/ICalendarFormat.h"
#include "Foundation/LineText.h"

using namespace ICalendarFormat;

namespace
{
constexpr qint64 minutesOfDay = 24 * 60;

/// What the format can hold: no control characters but line feeds and tabs.
QByteArray textOf(const QString &text)
{
    QString allowed = LineText::withLineFeeds(text);
    allowed.removeIf(
        [](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t'; });
    return allowed.toUtf8();
}

QByteArray uidOf(const QUuid &id)
{
    return id.toByteArray(QUuid::WithoutBraces).toUpper();
}

class Writer
{
public:
    Writer(const QTimeZone &zone, Timestamp now) : m_zone(zone), m_now(utc(now)) {}

    icalcomponent *event(const CalendarEvent &event) const
    {
        icalcomponent *const component = record(ICAL_VEVENT_COMPONENT, event.id, event.title, event.notes);
        const QDateTime moment = toDateTime(event.date, m_zone);
        icaltimetype start = dateOf(moment.date());
        if (event.timeMinutes && *event.timeMinutes >= 0 && *event.timeMinutes < minutesOfDay) {
            start.is_date = 0;
            start.hour = int(*event.timeMinutes / 60);
            start.minute = int(*event.timeMinutes % 60);
        } else {
            add(component, icalproperty_new_dtend(dateOf(moment.date().addDays(1))));
        }
        add(component, icalproperty_new_dtstart(start));
        if (event.kind != EventKind::event)
            add(component, icalproperty_new_categories(enumRawText(event.kind).toUtf8().constData()));
        add(component, icalproperty_new_created(utc(event.createdDate)));
        icalproperty *const kept = icalproperty_new_x(icaltime_as_ical_string(utcOf(moment)));
        icalproperty_set_x_name(kept, momentProperty);
        add(component, kept);
        return component;
    }

    icalcomponent *task(const TaskItem &task) const
    {
        icalcomponent *const component = record(ICAL_VTODO_COMPONENT, task.id, task.title, task.notes);
        add(component, icalproperty_new_due(utc(*task.dueDate)));
        add(component, icalproperty_new_status(statusOf(task.status)));
        add(component, icalproperty_new_priority(priorityOf(task.priority)));
        add(component, icalproperty_new_created(utc(task.createdDate)));
        add(component, icalproperty_new_lastmodified(utc(task.updatedDate)));
        if (task.completedDate)
            add(component, icalproperty_new_completed(utc(*task.completedDate)));
        return component;
    }

private:
    static void add(icalcomponent *component, icalproperty *property)
    {
        icalcomponent_add_property(component, property);
    }
    static icaltimetype utc(Timestamp moment) { return utcOf(toDateTime(moment, QTimeZone::utc())); }

    icalcomponent *record(icalcomponent_kind kind, const QUuid &id, const QString &title,
                          const QString &notes) const
    {
        icalcomponent *const component = icalcomponent_new(kind);
        add(component, icalproperty_new_uid(uidOf(id).constData()));
        add(component, icalproperty_new_dtstamp(m_now));
        add(component, icalproperty_new_summary(textOf(title).constData()));
        if (!notes.isEmpty())
            add(component, icalproperty_new_description(textOf(notes).constData()));
        return component;
    }

    static icalproperty_status statusOf(TaskStatus status)
    {
        switch (status) {
        case TaskStatus::todo:
            return ICAL_STATUS_NEEDSACTION;
        case TaskStatus::inProgress:
            return ICAL_STATUS_INPROCESS;
        case TaskStatus::done:
            return ICAL_STATUS_COMPLETED;
        }
        return ICAL_STATUS_NEEDSACTION;
    }

    /// 1 is the highest and 9 the lowest.
    static int priorityOf(TaskPriority priority)
    {
        switch (priority) {
        case TaskPriority::low:
            return 9;
        case TaskPriority::medium:
            return 5;
        case TaskPriority::high:
            return 1;
        }
        return 5;
    }

    QTimeZone m_zone;
    icaltimetype m_now;
};
} // namespace

QByteArray ICalendarWriter::write(const QList<CalendarEvent> &events, const QList<TaskItem> &tasks,
                                  const QTimeZone &zone, Timestamp now)
{
    const Component calendar(icalcomponent_new(ICAL_VCALENDAR_COMPONENT));
    icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_prodid("-//Orvel//Orvel//EN"));
    const Writer writer(zone, now);
    for (const CalendarEvent &event : events)
        icalcomponent_add_component(calendar.get(), writer.event(event));
    for (const TaskItem &task : tasks)
        if (task.dueDate)
            icalcomponent_add_component(calendar.get(), writer.task(task));
    const Text text(icalcomponent_as_ical_string_r(calendar.get()));
    return text.get();
}
