#pragma once

#include "Features/Tasks/TaskDay.h"
#include "Foundation/EnumTable.h"
#include "Models/TaskItem.h"

#include <QList>

enum class TaskFilter { all, open, today, upcoming };

template <>
struct EnumTable<TaskFilter> {
    static constexpr auto cases = std::to_array<EnumCase<TaskFilter>>({
        {TaskFilter::all, "all", QT_TRANSLATE_NOOP("EnumLabel", "All")},
        {TaskFilter::open, "open", QT_TRANSLATE_NOOP("EnumLabel", "Open")},
        {TaskFilter::today, "today", QT_TRANSLATE_NOOP("EnumLabel", "Today")},
        {TaskFilter::upcoming, "upcoming", QT_TRANSLATE_NOOP("EnumLabel", "Upcoming")},
    });
};

/// Which tasks a list shows.
namespace TaskFilters
{
/// Whether the filter takes this task; every filter but `all` takes open tasks only.
bool takes(TaskFilter filter, const TaskItem &task, const TaskDay &day);

/// The tasks that the list shows under this filter, in their given order; `all` puts the done ones after the
/// open ones.
QList<const TaskItem *> filteredOpen(const QList<TaskItem> &tasks, TaskFilter filter, const TaskDay &day);

/// All tasks that are due today, the open ones before the done ones.
QList<const TaskItem *> todayTasks(const QList<TaskItem> &tasks, const TaskDay &day);

/// Whether the task should have been done on a day before today; a done task never is overdue.
bool isOverdue(const TaskItem &task, const TaskDay &day);
} // namespace TaskFilters
