#include "Store/WorkspaceGroups.h"

WorkspaceGroups::WorkspaceGroups(const Clock &clock)
    : tasksByProject(&TaskItem::projectID),
      activitiesByProject([](const Activity &activity) { return std::optional(activity.projectID); }),
      rowsByTable([](const DBRow &row) { return std::optional(row.tableID); }),
      eventsByDay([&clock](const CalendarEvent &event) {
          return std::optional(toDateTime(event.date, clock.timeZone()).date());
      })
{
}

void WorkspaceGroups::follow(const UndoHistory::Lists &lists, const ChangeSet &changes)
{
    const auto follow = [&]<typename Record, typename Key>(RecordGroups<Record, Key> &groups) {
        groups.follow(std::get<RecordList<Record>>(lists), changes.of<Record>());
    };
    follow(tasksByProject);
    follow(activitiesByProject);
    follow(rowsByTable);
    follow(eventsByDay);
}
