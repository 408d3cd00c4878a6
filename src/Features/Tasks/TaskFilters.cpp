#include "Features/Tasks/TaskFilters.h"

#include <algorithm>

bool TaskFilters::takes(TaskFilter filter, const TaskItem &task, const TaskDay &day)
{
    const bool isOpen = task.status != TaskStatus::done;
    switch (filter) {
    case TaskFilter::all:
        return true;
    case TaskFilter::open:
        return isOpen;
    case TaskFilter::today:
        return isOpen && task.dueDate && day.isToday(*task.dueDate);
    case TaskFilter::upcoming:
        return isOpen && task.dueDate && day.isUpcoming(*task.dueDate);
    }
    return false;
}

QList<const TaskItem *> TaskFilters::filteredOpen(const QList<TaskItem> &tasks, TaskFilter filter,
                                                  const TaskDay &day)
{
    QList<const TaskItem *> shown;
    for (const TaskItem &task : tasks)
        if (takes(filter, task, day))
            shown.append(&task);
    std::ranges::stable_partition(shown,
                                  [](const TaskItem *task) { return task->status != TaskStatus::done; });
    return shown;
}

bool TaskFilters::isOverdue(const TaskItem &task, const TaskDay &day)
{
    return task.status != TaskStatus::done && task.dueDate && day.isPast(*task.dueDate);
}
