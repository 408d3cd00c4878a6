#pragma once

#include "Features/Tasks/TaskRow.h"

#include <QList>

/// Lays out the tasks of one project.
namespace ProjectTasks
{
/// The open ones, and below their header the done ones, folded away unless `showDone`; each sorted by title.
QList<TaskRow> build(const QList<const TaskItem *> &tasks, bool showDone, const TaskDay &day);
} // namespace ProjectTasks
