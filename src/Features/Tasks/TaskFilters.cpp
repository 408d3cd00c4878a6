#include "Features/Tasks/TaskFilters.h"

#include "Support/OVDate.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace
{
bool isDone(const TaskItem &task)
{
    return task.status == TaskStatus::done;
}

template <typename Predicate>
QList<TaskItem> filtered(const QList<TaskItem> &tasks, Predicate isShown)
{
    QList<TaskItem> shown;
    std::ranges::copy_if(tasks, std::back_inserter(shown), isShown);
    return shown;
}
} // namespace

QList<TaskItem> TaskFilters::openTasks(const QList<TaskItem> &tasks)
{
    return filtered(tasks, std::not_fn(isDone));
}

QList<TaskItem> TaskFilters::doneTasks(const QList<TaskItem> &tasks)
{
    return filtered(tasks, isDone);
}

QList<TaskItem> TaskFilters::filteredOpen(const QList<TaskItem> &tasks, TaskFilter filter, Timestamp now,
                                          const QTimeZone &zone)
{
    const QDate today = OVDate::day(now, zone);
    switch (filter) {
    case TaskFilter::all:
        return openTasks(tasks) + doneTasks(tasks);
    case TaskFilter::open:
        return openTasks(tasks);
    case TaskFilter::today:
        return filtered(tasks, [&](const TaskItem &task) {
            return !isDone(task) && task.dueDate && OVDate::day(*task.dueDate, zone) == today;
        });
    case TaskFilter::upcoming:
        break;
    }
    const Timestamp end = OVDate::startOfDay(today.addDays(7), zone);
    return filtered(tasks, [&](const TaskItem &task) {
        return !isDone(task) && task.dueDate && *task.dueDate > now && *task.dueDate <= end;
    });
}

QString TaskFilters::dueLabel(QDate due, QDate today)
{
    return due == today ? QStringLiteral("Today") : OVDate::medium(due);
}

bool TaskFilters::isOverdue(const TaskItem &task, QDate today, const QTimeZone &zone)
{
    return !isDone(task) && task.dueDate && OVDate::day(*task.dueDate, zone) < today;
}
