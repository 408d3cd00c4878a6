#pragma once

#include "Features/Tasks/TaskFilters.h"
#include "Features/Tasks/TaskRow.h"

/// Lays out the rows of the task list.
namespace TaskRows
{
struct List {
    QList<TaskRow> rows;
    /// How many of the rows the filter took.
    qsizetype filtered = 0;
};

/// The tasks that the filter takes, and under every filter but `all` the completed ones below their header,
/// folded away unless `showDone`.
List build(const QList<TaskItem> &tasks, TaskFilter filter, bool showDone, const TaskDay &day);

/// Appends rows of these tasks, which stand together as one run.
void appendRun(QList<TaskRow> &rows, const QList<const TaskItem *> &tasks, const TaskDay &day);

/// The row with what the task has become; nothing if the task no longer stands where the row does.
std::optional<TaskRow> updated(const TaskRow &row, const TaskItem &task, TaskFilter filter,
                               const TaskDay &day);
} // namespace TaskRows
