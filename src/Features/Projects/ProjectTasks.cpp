#include "Features/Projects/ProjectTasks.h"

#include "Features/Tasks/TaskRows.h"

#include <algorithm>

QList<TaskRow> ProjectTasks::build(const QList<const TaskItem *> &tasks, bool showDone, const TaskDay &day)
{
    QList<const TaskItem *> open;
    QList<const TaskItem *> done;
    for (const TaskItem *const task : tasks)
        (task->status == TaskStatus::done ? done : open).append(task);
    std::ranges::stable_sort(open, {}, &TaskItem::title);
    QList<TaskRow> rows;
    TaskRows::appendRun(rows, open, day);
    if (done.isEmpty())
        return rows;
    rows.append(TaskRow::completedHeader(done.size()));
    if (!showDone)
        return rows;
    std::ranges::stable_sort(done, {}, &TaskItem::title);
    TaskRows::appendRun(rows, done, day);
    return rows;
}
