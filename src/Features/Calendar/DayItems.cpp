#include "Features/Calendar/DayItems.h"

#include "Store/EventOperations.h"
#include "Support/OVDate.h"

namespace
{
BadgeTone toneOf(EventKind kind)
{
    switch (kind) {
    case EventKind::event:
        return BadgeTone::neutral;
    case EventKind::deadline:
        return BadgeTone::warning;
    case EventKind::reminder:
        return BadgeTone::info;
    }
    return BadgeTone::neutral;
}

QString timeText(qint64 minutes)
{
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString itemID(QChar kind, const QUuid &record)
{
    return kind + record.toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

DayItem DayItem::of(const CalendarEvent &event)
{
    return {.id = itemID(u'e', event.id),
            .title = event.title,
            .kindLabel = enumLabel(event.kind),
            .tone = toneOf(event.kind),
            .timeLabel = event.timeMinutes ? std::optional(timeText(*event.timeMinutes)) : std::nullopt,
            .eventID = event.id,
            .notes = event.notes};
}

DayItems::DayItems(const WorkspaceStore &store, const QList<QDate> &days) : m_store(store)
{
    // Comparing moments costs far less than asking the time zone for the day of each task.
    QList<Timestamp> starts;
    const QTimeZone zone = store.clock().timeZone();
    for (const QDate day : days)
        starts.append(OVDate::startOfDay(day, zone));
    starts.append(OVDate::startOfDay(days.last().addDays(1), zone));
    for (const TaskItem &task : store.tasks()) {
        if (!task.dueDate || *task.dueDate < starts.first() || *task.dueDate >= starts.last())
            continue;
        const auto next = std::ranges::upper_bound(starts, *task.dueDate);
        m_tasks[days.at(next - starts.begin() - 1)].append(&task);
    }
}

QList<DayItem> DayItems::on(QDate day, qsizetype most) const
{
    QList<DayItem> items;
    for (const CalendarEvent *event : EventOperations::onDay(m_store, day)) {
        if (items.size() == most)
            return items;
        items.append(DayItem::of(*event));
    }
    for (const TaskItem *task : m_tasks.value(day)) {
        if (items.size() == most)
            return items;
        items.append({.id = itemID(u't', task->id),
                      .title = task->title,
                      .kindLabel = tr("Task"),
                      .done = task->status == TaskStatus::done,
                      .notes = task->notes});
    }
    return items;
}

qsizetype DayItems::countOn(QDate day) const
{
    const auto events = m_store.groups().eventsByDay.of(m_store.list<CalendarEvent>(), day);
    return events.size() + m_tasks.value(day).size();
}
