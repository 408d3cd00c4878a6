#include "Store/Questions.h"
#include "Store/WorkspaceStore.h"

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

WorkspaceStore::Found<CalendarEvent> WorkspaceStore::eventsOn(QDate day) const
{
    const QTimeZone zone = clock().timeZone();
    return Questions::ascending(
        Questions::where(
            events(), [&](const CalendarEvent &event) { return toDateTime(event.date, zone).date() == day; }),
        [](const CalendarEvent &event) { return event.timeMinutes.value_or(-1); });
}

WorkspaceStore::Found<Activity> WorkspaceStore::activitiesFor(const QUuid &projectID) const
{
    return Questions::newestFirst(
        Questions::where(activities(),
                         [&projectID](const Activity &activity) { return activity.projectID == projectID; }),
        &Activity::date);
}
