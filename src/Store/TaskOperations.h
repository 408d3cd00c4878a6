#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with tasks. Each is an action; an unknown id does nothing.
namespace TaskOperations
{
QUuid create(WorkspaceStore &store, const QString &title, TaskPriority priority = TaskPriority::medium,
             std::optional<Timestamp> dueDate = std::nullopt);
/// Takes what was typed over, key by key or at once.
void rename(WorkspaceStore &store, const QUuid &taskID, const QString &title);
void toggleDone(WorkspaceStore &store, const QUuid &taskID);
void cycleStatus(WorkspaceStore &store, const QUuid &taskID);
void setStatus(WorkspaceStore &store, const QUuid &taskID, TaskStatus status);
void cyclePriority(WorkspaceStore &store, const QUuid &taskID);
void setPriority(WorkspaceStore &store, const QUuid &taskID, TaskPriority priority);
/// @param dueDate nothing takes the due date away
void setDue(WorkspaceStore &store, const QUuid &taskID, std::optional<Timestamp> dueDate);
void remove(WorkspaceStore &store, const QUuid &taskID);

/// The tasks of a project in the order of their creation.
QList<const TaskItem *> ofProject(const WorkspaceStore &store, const QUuid &projectID);
} // namespace TaskOperations
