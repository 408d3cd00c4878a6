#include "Store/Questions.h"
#include "Store/WorkspaceStore.h"

WorkspaceStore::Found<CalendarEvent> WorkspaceStore::eventsOn(QDate day) const
{
    const QTimeZone zone = clock().timeZone();
    return Questions::ascending(
        Questions::where(
            events(), [&](const CalendarEvent &event) { return toDateTime(event.date, zone).date() == day; }),
        [](const CalendarEvent &event) { return event.timeMinutes.value_or(-1); });
}
