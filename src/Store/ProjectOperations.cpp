#include "Store/ProjectOperations.h"

#include "Store/Questions.h"
#include "Store/TaskOperations.h"

namespace
{
const QString statusKind = QStringLiteral("status");
const QString noteKind = QStringLiteral("note");

QUuid addProject(WorkspaceStore &store, Project project, const QString &activity)
{
    project.id = store.makeId();
    project.createdDate = project.updatedDate = store.now();
    for (Milestone &milestone : project.milestones) {
        milestone.id = store.makeId();
        milestone.done = false;
    }
    store.add(project);
    ProjectOperations::logActivity(store, project.id, activity, statusKind);
    return project.id;
}

/// What was typed into a field of the project.
void type(WorkspaceStore &store, const QUuid &projectID, QString Project::*field, const QString &fieldName,
          const QString &text, const QString &actionName)
{
    const Project *const project = store.projects().first(projectID);
    if (!project || project->*field == text)
        return;
    const Action action(
        store,
        Typing{.text = {projectID, fieldName}, .before = project->*field, .after = text, .name = actionName});
    store.change<Project>(projectID, [&](Project &changed) {
        changed.*field = text;
        changed.updatedDate = store.now();
    });
}

/// An edit that finds nothing to change leaves the project as it is, its date included.
void changeMilestones(WorkspaceStore &store, const QUuid &projectID,
                      const std::function<void(QList<Milestone> &)> &edit)
{
    store.change<Project>(projectID, [&](Project &project) {
        const QList<Milestone> before = project.milestones;
        edit(project.milestones);
        if (project.milestones != before)
            project.updatedDate = store.now();
    });
}
} // namespace

QUuid ProjectOperations::create(WorkspaceStore &store, const ProjectTemplate &from)
{
    const Action action(store, ActionText::tr("New Project"));
    Project project{.name = from.name, .icon = from.icon, .details = from.details, .status = from.status};
    for (const QString &title : from.milestones)
        project.milestones.append({.title = title});
    const QUuid id =
        addProject(store, project, ActionText::tr("Created from the %1 template").arg(from.name));
    for (const QString &title : from.tasks)
        addTask(store, id, title);
    return id;
}

std::optional<QUuid> ProjectOperations::createBlank(WorkspaceStore &store, const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const Action action(store, ActionText::tr("New Project"));
    return addProject(store, {.name = trimmed, .icon = QStringLiteral("🚀")},
                      ActionText::tr("Project created"));
}

std::optional<QUuid> ProjectOperations::createFrom(WorkspaceStore &store, const QUuid &templateProjectID)
{
    const Project *const original = store.projects().first(templateProjectID);
    if (!original)
        return std::nullopt;
    const Action action(store, ActionText::tr("New Project"));
    return addProject(store,
                      {.name = original->name + QStringLiteral(" copy"),
                       .icon = original->icon,
                       .details = original->details,
                       .status = original->status,
                       .milestones = original->milestones},
                      ActionText::tr("Created from a template"));
}

void ProjectOperations::rename(WorkspaceStore &store, const QUuid &projectID, const QString &name)
{
    type(store, projectID, &Project::name, QStringLiteral("name"), name, ActionText::tr("Rename Project"));
}

void ProjectOperations::setDetails(WorkspaceStore &store, const QUuid &projectID, const QString &details)
{
    type(store, projectID, &Project::details, QStringLiteral("details"), details,
         ActionText::tr("Change Description"));
}

void ProjectOperations::setDue(WorkspaceStore &store, const QUuid &projectID,
                               std::optional<Timestamp> dueDate)
{
    const Action action(store,
                        dueDate ? ActionText::tr("Change Due Date") : ActionText::tr("Clear Due Date"));
    store.change<Project>(projectID, [&](Project &project) {
        project.dueDate = dueDate;
        project.updatedDate = store.now();
    });
}

void ProjectOperations::toggleTemplate(WorkspaceStore &store, const QUuid &projectID)
{
    const Action action(store, ActionText::tr("Change Template"));
    store.change<Project>(projectID, [&](Project &project) {
        project.isTemplate = !project.isTemplate;
        project.updatedDate = store.now();
    });
}

void ProjectOperations::setStatus(WorkspaceStore &store, const QUuid &projectID, ProjectStatus status)
{
    const Action action(store, ActionText::tr("Change Status"));
    store.change<Project>(projectID, [&](Project &project) {
        project.status = status;
        project.updatedDate = store.now();
    });
    logActivity(store, projectID, ActionText::tr("Status changed to %1").arg(enumLabel(status)), statusKind);
}

void ProjectOperations::addMilestone(WorkspaceStore &store, const QUuid &projectID, const QString &title)
{
    const QString trimmed = title.trimmed();
    if (trimmed.isEmpty())
        return;
    const Action action(store, ActionText::tr("Add Milestone"));
    changeMilestones(store, projectID, [&](QList<Milestone> &milestones) {
        milestones.append({store.makeId(), trimmed, false});
    });
    logActivity(store, projectID, ActionText::tr("Added milestone “%1”").arg(trimmed), noteKind);
}

void ProjectOperations::toggleMilestone(WorkspaceStore &store, const QUuid &projectID,
                                        const QUuid &milestoneID)
{
    const Action action(store, ActionText::tr("Change Milestone"));
    changeMilestones(store, projectID, [&](QList<Milestone> &milestones) {
        for (Milestone &milestone : milestones)
            if (milestone.id == milestoneID)
                milestone.done = !milestone.done;
    });
}

void ProjectOperations::removeMilestone(WorkspaceStore &store, const QUuid &projectID,
                                        const QUuid &milestoneID)
{
    const Action action(store, ActionText::tr("Delete Milestone"));
    action.setMessage(ActionText::tr("Milestone deleted"));
    changeMilestones(store, projectID, [&](QList<Milestone> &milestones) {
        milestones.removeIf([&](const Milestone &milestone) { return milestone.id == milestoneID; });
    });
}

void ProjectOperations::addTask(WorkspaceStore &store, const QUuid &projectID, const QString &title)
{
    const QString trimmed = title.trimmed();
    if (trimmed.isEmpty() || !store.projects().contains(projectID))
        return;
    const Action action(store, ActionText::tr("New Task"));
    const QUuid taskID = TaskOperations::create(store, trimmed);
    store.change<TaskItem>(taskID, [&](TaskItem &task) { task.projectID = projectID; });
}

void ProjectOperations::logActivity(WorkspaceStore &store, const QUuid &projectID, const QString &text,
                                    const QString &kind)
{
    if (!store.projects().contains(projectID))
        return;
    const Action action(store, ActionText::tr("Log Activity"));
    store.add(Activity{store.makeId(), projectID, text, kind, store.now()});
}

void ProjectOperations::remove(WorkspaceStore &store, const QUuid &projectID)
{
    if (!store.projects().contains(projectID))
        return;
    const Action action(store, ActionText::tr("Delete Project"));
    action.setMessage(ActionText::tr("Project deleted"));
    QList<QUuid> taskIDs;
    for (const TaskItem *const task : TaskOperations::ofProject(store, projectID))
        taskIDs.append(task->id);
    // First, since a step shows the record that it changed first.
    store.erase<Project>(projectID);
    for (const QUuid &taskID : std::as_const(taskIDs))
        store.change<TaskItem>(taskID, [&](TaskItem &task) {
            task.projectID.reset();
            task.updatedDate = store.now();
        });
    QSet<QUuid> activityIDs;
    for (const Activity *const activity : activities(store, projectID))
        activityIDs.insert(activity->id);
    store.erase<Activity>(activityIDs);
}

QHash<QUuid, ProjectProgress> ProjectOperations::progress(const WorkspaceStore &store)
{
    QHash<QUuid, QList<TaskItem>> tasks;
    for (const TaskItem &task : store.tasks())
        if (task.projectID)
            tasks[*task.projectID].append(task);
    QHash<QUuid, ProjectProgress> progress;
    for (const auto &[projectID, ofProject] : tasks.asKeyValueRange())
        progress.insert(projectID, ProjectProgress(ofProject));
    return progress;
}

ProjectProgress ProjectOperations::progress(const WorkspaceStore &store, const QUuid &projectID)
{
    QList<TaskItem> tasks;
    for (const TaskItem *const task : TaskOperations::ofProject(store, projectID))
        tasks.append(*task);
    return ProjectProgress(tasks);
}

QList<const Activity *> ProjectOperations::activities(const WorkspaceStore &store, const QUuid &projectID)
{
    return Questions::newestFirst(store.groups().activitiesByProject.of(store.list<Activity>(), projectID),
                                  &Activity::date);
}
