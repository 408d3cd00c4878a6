#include "Features/Tasks/TaskFilters.h"

#include <algorithm>

namespace
{
void putOpenFirst(QList<const TaskItem *> &tasks)
{
    std::ranges::stable_partition(tasks,
                                  [](const TaskItem *task) { return task->status != TaskStatus::done; });
}
} // namespace

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
    putOpenFirst(shown);
    return shown;
}

QList<const TaskItem *> TaskFilters::todayTasks(const QList<TaskItem> &tasks, const TaskDay &day)
{
    QList<const TaskItem *> due;
    for (const TaskItem &task : tasks)
        if (task.dueDate && day.isToday(*task.dueDate))
            due.append(&task);
    putOpenFirst(due);
    return due;
}

bool TaskFilters::isOverdue(const TaskItem &task, const TaskDay &day)
{
    return task.status != TaskStatus::done && task.dueDate && day.isPast(*task.dueDate);
}
