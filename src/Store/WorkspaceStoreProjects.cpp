#include "Store/Questions.h"
#include "Store/WorkspaceStore.h"

namespace
{
const QString statusKind = QStringLiteral("status");
const QString noteKind = QStringLiteral("note");
} // namespace

QUuid WorkspaceStore::addProject(Project project, const QString &activity)
{
    project.id = m_options.makeId();
    project.createdDate = project.updatedDate = now();
    for (Milestone &milestone : project.milestones) {
        milestone.id = m_options.makeId();
        milestone.done = false;
    }
    add(project);
    logActivity(project.id, activity, statusKind);
    return project.id;
}

QUuid WorkspaceStore::makeProject(const ProjectTemplate &from)
{
    Project project{.name = from.name, .icon = from.icon, .details = from.details, .status = from.status};
    for (const QString &title : from.milestones)
        project.milestones.append({.title = title});
    const QUuid id =
        addProject(project, QStringLiteral("Created from the ") + from.name + QStringLiteral(" template"));
    for (const QString &title : from.tasks)
        addProjectTask(id, title);
    return id;
}

std::optional<QUuid> WorkspaceStore::makeBlankProject(const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    return addProject({.name = trimmed, .icon = QStringLiteral("🚀")}, QStringLiteral("Project created"));
}

std::optional<QUuid> WorkspaceStore::makeProjectFrom(const QUuid &templateProjectID)
{
    const Project *const original = projects().first(templateProjectID);
    if (!original)
        return std::nullopt;
    return addProject({.name = original->name + QStringLiteral(" copy"),
                       .icon = original->icon,
                       .details = original->details,
                       .status = original->status,
                       .milestones = original->milestones},
                      QStringLiteral("Created from a template"));
}

void WorkspaceStore::setProjectStatus(const QUuid &projectID, ProjectStatus status)
{
    change<Project>(projectID, [&](Project &project) {
        project.status = status;
        project.updatedDate = now();
    });
    logActivity(projectID, QStringLiteral("Status changed to ") + enumLabel(status), statusKind);
}

void WorkspaceStore::changeMilestones(const QUuid &projectID,
                                      const std::function<void(QList<Milestone> &)> &edit)
{
    change<Project>(projectID, [&](Project &project) {
        edit(project.milestones);
        project.updatedDate = now();
    });
}

void WorkspaceStore::addMilestone(const QUuid &projectID, const QString &title)
{
    const QString trimmed = title.trimmed();
    if (trimmed.isEmpty())
        return;
    changeMilestones(projectID, [&](QList<Milestone> &milestones) {
        milestones.append({m_options.makeId(), trimmed, false});
    });
    logActivity(projectID, QStringLiteral("Added milestone “%1”").arg(trimmed), noteKind);
}

void WorkspaceStore::toggleMilestone(const QUuid &projectID, const QUuid &milestoneID)
{
    changeMilestones(projectID, [&](QList<Milestone> &milestones) {
        for (Milestone &milestone : milestones)
            if (milestone.id == milestoneID)
                milestone.done = !milestone.done;
    });
}

void WorkspaceStore::removeMilestone(const QUuid &projectID, const QUuid &milestoneID)
{
    changeMilestones(projectID, [&](QList<Milestone> &milestones) {
        milestones.removeIf([&](const Milestone &milestone) { return milestone.id == milestoneID; });
    });
}

void WorkspaceStore::addProjectTask(const QUuid &projectID, const QString &title)
{
    const QString trimmed = title.trimmed();
    if (trimmed.isEmpty() || !projects().first(projectID))
        return;
    const QUuid taskID = newTask(trimmed, TaskPriority::medium, std::nullopt);
    change<TaskItem>(taskID, [&](TaskItem &task) { task.projectID = projectID; });
}

void WorkspaceStore::logActivity(const QUuid &projectID, const QString &text, const QString &kind)
{
    if (!projects().first(projectID))
        return;
    add(Activity{m_options.makeId(), projectID, text, kind, now()});
}

void WorkspaceStore::deleteProject(const QUuid &projectID)
{
    if (!projects().first(projectID))
        return;
    const auto isOfProject = [&projectID](const auto &record) { return record.projectID == projectID; };
    for (const QUuid &taskID : Questions::ids(tasks(), isOfProject))
        change<TaskItem>(taskID, [this](TaskItem &task) {
            task.projectID.reset();
            task.updatedDate = now();
        });
    remove<Activity>(Questions::ids(activities(), isOfProject));
    erase<Project>(projectID);
}

WorkspaceStore::Found<Activity> WorkspaceStore::activitiesFor(const QUuid &projectID) const
{
    return Questions::newestFirst(
        Questions::where(activities(),
                         [&projectID](const Activity &activity) { return activity.projectID == projectID; }),
        &Activity::date);
}
