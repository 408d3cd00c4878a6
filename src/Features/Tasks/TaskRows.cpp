#include "Features/Tasks/TaskRows.h"

namespace
{
QList<const TaskItem *> doneTasks(const QList<TaskItem> &tasks)
{
    QList<const TaskItem *> done;
    for (const TaskItem &task : tasks)
        if (task.status == TaskStatus::done)
            done.append(&task);
    return done;
}
} // namespace

void TaskRows::appendRun(QList<TaskRow> &rows, const QList<const TaskItem *> &tasks, const TaskDay &day)
{
    for (const TaskItem *task : tasks) {
        TaskRow row = TaskRow::ofTask(*task, day);
        row.isFirst = task == tasks.first();
        row.isLast = task == tasks.last();
        rows.append(std::move(row));
    }
}

TaskRows::List TaskRows::build(const QList<TaskItem> &tasks, TaskFilter filter, bool showDone,
                               const TaskDay &day)
{
    List list;
    const auto shown = TaskFilters::filteredOpen(tasks, filter, day);
    list.filtered = shown.size();
    appendRun(list.rows, shown, day);
    if (filter == TaskFilter::all)
        return list;
    const auto done = doneTasks(tasks);
    if (done.isEmpty())
        return list;
    list.rows.append(TaskRow::completedHeader(done.size()));
    if (showDone)
        appendRun(list.rows, done, day);
    return list;
}

std::optional<TaskRow> TaskRows::updated(const TaskRow &row, const TaskItem &task, TaskFilter filter,
                                         const TaskDay &day)
{
    TaskRow next = TaskRow::ofTask(task, day);
    if (next.isDone() != row.isDone() || (!next.isDone() && !TaskFilters::takes(filter, task, day)))
        return std::nullopt;
    next.isFirst = row.isFirst;
    next.isLast = row.isLast;
    return next;
}
