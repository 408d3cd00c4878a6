#pragma once

#include "Store/WorkspaceStore.h"
#include "Support/ProjectTemplates.h"

/// What is done with projects. Each is an action; an unknown id does nothing.
namespace ProjectOperations
{
/// The project with the template's milestones and tasks; returns its id.
QUuid create(WorkspaceStore &store, const ProjectTemplate &from);
/// A project with nothing but its name; nothing for a blank one. Returns its id.
std::optional<QUuid> createBlank(WorkspaceStore &store, const QString &name);
/// A copy of a project kept as a template, with its milestones open again and without its tasks.
std::optional<QUuid> createFrom(WorkspaceStore &store, const QUuid &templateProjectID);
/// Take what was typed over, key by key or at once.
void rename(WorkspaceStore &store, const QUuid &projectID, const QString &name);
void setDetails(WorkspaceStore &store, const QUuid &projectID, const QString &details);
/// @param dueDate nothing takes the due date away
void setDue(WorkspaceStore &store, const QUuid &projectID, std::optional<Timestamp> dueDate);
/// Makes a template of a project and a project of a template.
void toggleTemplate(WorkspaceStore &store, const QUuid &projectID);
/// Logs the status even if it stays the same.
void setStatus(WorkspaceStore &store, const QUuid &projectID, ProjectStatus status);
/// Titles are trimmed; blank ones are ignored.
void addMilestone(WorkspaceStore &store, const QUuid &projectID, const QString &title);
void toggleMilestone(WorkspaceStore &store, const QUuid &projectID, const QUuid &milestoneID);
void removeMilestone(WorkspaceStore &store, const QUuid &projectID, const QUuid &milestoneID);
void addTask(WorkspaceStore &store, const QUuid &projectID, const QString &title);
void logActivity(WorkspaceStore &store, const QUuid &projectID, const QString &text, const QString &kind);
/// The tasks of the project stay; its activities go.
void remove(WorkspaceStore &store, const QUuid &projectID);

/// How far each project with tasks has come, counted in one pass over the tasks.
QHash<QUuid, ProjectProgress> progress(const WorkspaceStore &store);
/// How far one project has come.
ProjectProgress progress(const WorkspaceStore &store, const QUuid &projectID);

/// The activities of a project, newest first.
QList<const Activity *> activities(const WorkspaceStore &store, const QUuid &projectID);
} // namespace ProjectOperations
