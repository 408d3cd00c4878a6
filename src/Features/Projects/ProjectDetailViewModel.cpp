#include "Features/Projects/ProjectDetailViewModel.h"

#include "Features/Projects/ProjectRow.h"
#include "Features/Projects/ProjectTasks.h"
#include "Foundation/LineText.h"
#include "Store/ProjectOperations.h"
#include "Store/TaskOperations.h"

namespace
{
constexpr qsizetype fewActivities = 10;
constexpr qsizetype moreActivities = 40;
constexpr std::chrono::days dueIn{14};
} // namespace

ProjectDetailViewModel::ProjectDetailViewModel(QObject *parent)
    : ViewModel(parent), m_activityLimit(fewActivities)
{
    follow<Project, TaskItem, Activity>();
    followDays();
}

void ProjectDetailViewModel::setProjectID(const QUuid &projectID)
{
    if (m_projectID == projectID)
        return;
    m_projectID = projectID;
    emit projectIDChanged();
    if (session())
        requestWholeRefresh();
}

void ProjectDetailViewModel::setName(const QString &name)
{
    ProjectOperations::rename(store(), m_projectID, LineText::singleLine(name));
}

void ProjectDetailViewModel::setDetails(const QString &details)
{
    ProjectOperations::setDetails(store(), m_projectID, LineText::withLineFeeds(details));
}

Choice ProjectDetailViewModel::status() const
{
    return ProjectRow::choice(m_project.status);
}

QList<Choice> ProjectDetailViewModel::statuses()
{
    return Choice::all<ProjectStatus>();
}

void ProjectDetailViewModel::setDueEnabled(bool enabled)
{
    if (enabled == dueEnabled())
        return;
    ProjectOperations::setDue(store(), m_projectID,
                              enabled ? std::optional(clock().now() + dueIn) : std::nullopt);
}

QDateTime ProjectDetailViewModel::due() const
{
    return m_project.dueDate ? toDateTime(*m_project.dueDate, QTimeZone::utc()) : QDateTime();
}

void ProjectDetailViewModel::setDue(const QDateTime &due)
{
    if (due.isValid())
        ProjectOperations::setDue(store(), m_projectID, toTimestamp(due));
}

QString ProjectDetailViewModel::tasksText() const
{
    return ProjectRow::tasksText(m_progress);
}

QString ProjectDetailViewModel::percentText() const
{
    return ProjectRow::percentText(m_progress);
}

double ProjectDetailViewModel::progress() const
{
    return ProjectRow::share(m_progress);
}

QString ProjectDetailViewModel::openText() const
{
    return tr("%1 open").arg(m_progress.total - m_progress.done);
}

void ProjectDetailViewModel::setShowDoneTasks(bool show)
{
    if (m_showDoneTasks == show)
        return;
    m_showDoneTasks = show;
    emit showDoneTasksChanged();
    requestWholeRefresh();
}

bool ProjectDetailViewModel::addTask(const QString &title)
{
    const QString trimmed = LineText::singleLine(title.trimmed());
    ProjectOperations::addTask(store(), m_projectID, trimmed);
    return !trimmed.isEmpty();
}

bool ProjectDetailViewModel::addMilestone(const QString &title)
{
    const QString trimmed = LineText::singleLine(title.trimmed());
    ProjectOperations::addMilestone(store(), m_projectID, trimmed);
    return !trimmed.isEmpty();
}

void ProjectDetailViewModel::toggleMilestone(const QUuid &milestoneID)
{
    ProjectOperations::toggleMilestone(store(), m_projectID, milestoneID);
}

void ProjectDetailViewModel::removeMilestone(const QUuid &milestoneID)
{
    ProjectOperations::removeMilestone(store(), m_projectID, milestoneID);
}

QString ProjectDetailViewModel::moreActivitiesText() const
{
    const qsizetype more = m_activityCount - m_activities.rows().size();
    return more > 0 ? tr("%1 more").arg(more) : QString();
}

void ProjectDetailViewModel::showMoreActivities()
{
    m_activityLimit += moreActivities;
    showActivities();
}

void ProjectDetailViewModel::refresh(const ChangeSet &changes)
{
    const Project *const project = store().projects().first(m_projectID);
    if (!project)
        return;
    if (changes.of<Project>().contains(m_projectID))
        showProject(*project);
    if (changes.touches<TaskItem>())
        showTasks(changes.of<TaskItem>());
    if (changes.touches<Activity>())
        showActivities();
}

void ProjectDetailViewModel::showProject(const Project &project)
{
    m_project = project;
    QList<MilestoneLine> lines;
    for (const Milestone &milestone : project.milestones)
        lines.append(MilestoneLine::of(milestone));
    m_milestones.setRows(std::move(lines));
    emit projectChanged();
}

void ProjectDetailViewModel::showTasks(const RecordChanges &changes)
{
    const TaskDay day(clock());
    if (changes.isReplacedOnly() && updateTasks(changes.replaced, day))
        return;
    m_tasks.setRows(
        ProjectTasks::build(TaskOperations::ofProject(store(), m_projectID), m_showDoneTasks, day));
    m_progress = ProjectOperations::progress(store(), m_projectID);
    emit tasksChanged();
}

bool ProjectDetailViewModel::updateTasks(const QSet<QUuid> &changed, const TaskDay &day)
{
    for (const QUuid &id : changed) {
        const TaskItem &task = *store().tasks().first(id);
        const TaskRow *const row = m_tasks.find(id);
        if (!row && task.projectID != m_projectID)
            continue;
        // A title that is being typed stays where it is.
        if (!row || task.projectID != m_projectID || row->isDone() != (task.status == TaskStatus::done))
            return false;
        TaskRow next = TaskRow::ofTask(task, day);
        next.isFirst = row->isFirst;
        next.isLast = row->isLast;
        m_tasks.updateRow(std::move(next));
    }
    return true;
}

void ProjectDetailViewModel::showActivities()
{
    const auto activities = ProjectOperations::activities(store(), m_projectID);
    QList<ActivityLine> lines;
    for (const Activity *const activity : activities.mid(0, m_activityLimit))
        lines.append(ActivityLine::of(*activity, clock().today(), clock().timeZone()));
    m_activities.setRows(std::move(lines));
    m_activityCount = activities.size();
    emit activitiesChanged();
}

bool ProjectDetailViewModel::reveal(const UndoPlace &place)
{
    if (place.textRecord == m_projectID) {
        emit fieldRevealed(place.textField, place.caret);
        return true;
    }
    const auto &rows = m_tasks.rows();
    const auto row = std::ranges::find(rows, place.record, &TaskRow::id);
    if (row != rows.end())
        emit taskRevealed(int(row - rows.begin()));
    return place.record == m_projectID || row != rows.end();
}
