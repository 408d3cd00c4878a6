#pragma once

#include "Foundation/Clock.h"
#include "Store/RecordGroups.h"
#include "Store/UndoHistory.h"

/// The records of a workspace found by a key they share, kept up with each change.
class WorkspaceGroups
{
public:
    explicit WorkspaceGroups(const Clock &clock);

    RecordGroups<TaskItem, QUuid> tasksByProject;
    RecordGroups<Activity, QUuid> activitiesByProject;
    RecordGroups<DBRow, QUuid> rowsByTable;
    /// By the day in the clock's time zone.
    RecordGroups<CalendarEvent, QDate> eventsByDay;

    template <typename Record>
    void insert(const Record &record)
    {
        groupsOf<Record>([&record](auto &groups) { groups.insert(record); });
    }
    template <typename Record>
    void replace(const Record &record)
    {
        groupsOf<Record>([&record](auto &groups) { groups.replace(record); });
    }
    template <typename Record>
    void remove(const Record &record)
    {
        groupsOf<Record>([&record](auto &groups) { groups.remove(record.id); });
    }
    /// After steps were undone or done again, or everything is new.
    void follow(const UndoHistory::Lists &lists, const ChangeSet &changes);

private:
    template <typename Record, typename Call>
    void groupsOf([[maybe_unused]] Call call)
    {
        if constexpr (std::is_same_v<Record, TaskItem>)
            call(tasksByProject);
        else if constexpr (std::is_same_v<Record, Activity>)
            call(activitiesByProject);
        else if constexpr (std::is_same_v<Record, DBRow>)
            call(rowsByTable);
        else if constexpr (std::is_same_v<Record, CalendarEvent>)
            call(eventsByDay);
    }
};
