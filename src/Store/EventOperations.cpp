#include "Store/EventOperations.h"

#include "Store/Questions.h"

QUuid EventOperations::create(WorkspaceStore &store, const QString &title, Timestamp date,
                              std::optional<qint64> timeMinutes, EventKind kind)
{
    const Action action(store, ActionText::tr("New Event"));
    const CalendarEvent event{.id = store.makeId(),
                              .title = title,
                              .date = date,
                              .timeMinutes = timeMinutes,
                              .kind = kind,
                              .createdDate = store.now()};
    store.add(event);
    return event.id;
}

void EventOperations::addAll(WorkspaceStore &store, const QList<CalendarEvent> &events)
{
    const Action action(store, ActionText::tr("Import Events"));
    action.setMessage(events.size() == 1 ? ActionText::tr("1 event added")
                                         : ActionText::tr("%1 events added").arg(events.size()));
    for (const CalendarEvent &event : events)
        store.add(event);
}

void EventOperations::remove(WorkspaceStore &store, const QUuid &eventID)
{
    const Action action(store, ActionText::tr("Delete Event"));
    action.setMessage(ActionText::tr("Event deleted"));
    store.erase<CalendarEvent>(eventID);
}

QList<const CalendarEvent *> EventOperations::onDay(const WorkspaceStore &store, QDate day)
{
    return Questions::ascending(store.groups().eventsByDay.of(store.list<CalendarEvent>(), day),
                                [](const CalendarEvent &event) { return event.timeMinutes.value_or(-1); });
}
