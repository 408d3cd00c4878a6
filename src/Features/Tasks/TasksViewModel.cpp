#include "Features/Tasks/TasksViewModel.h"

#include "Foundation/EnumChoices.h"
#include "Foundation/LineText.h"
#include "Store/TaskOperations.h"

#include <utility>

TasksViewModel::TasksViewModel(QObject *parent) : ViewModel(parent)
{
    follow<TaskItem>();
    followDays();
}

void TasksViewModel::start()
{
    connect(&clock(), &Clock::ticked, this, &TasksViewModel::timePassed);
    m_due = toDateTime(clock().now(), clock().timeZone());
    emit dueChanged();
}

void TasksViewModel::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    emit titleChanged();
}

bool TasksViewModel::canAdd() const
{
    return !m_title.trimmed().isEmpty();
}

void TasksViewModel::addTask()
{
    if (!canAdd())
        return;
    const auto due = m_dueEnabled ? std::optional(toTimestamp(m_due)) : std::nullopt;
    TaskOperations::create(store(), LineText::singleLine(m_title.trimmed()), TaskPriority(m_priority), due);
    setTitle({});
    if (std::exchange(m_dueEnabled, false))
        emit dueEnabledChanged();
    if (m_priority != int(TaskPriority::medium)) {
        m_priority = int(TaskPriority::medium);
        emit priorityChanged();
    }
}

void TasksViewModel::setFilter(int filter)
{
    if (filter == int(m_filter) || !EnumChoices::isCase<TaskFilter>(filter))
        return;
    m_filter = TaskFilter(filter);
    emit filterChanged();
    requestWholeRefresh();
}

void TasksViewModel::setShowDone(bool showDone)
{
    if (m_showDone == showDone)
        return;
    m_showDone = showDone;
    emit showDoneChanged();
    requestWholeRefresh();
}

QString TasksViewModel::countText() const
{
    return tr("%1 open").arg(m_filtered);
}

QStringList TasksViewModel::filterTexts() const
{
    return EnumChoices::labels<TaskFilter>();
}

QStringList TasksViewModel::statusTexts() const
{
    return EnumChoices::labels<TaskStatus>();
}

QStringList TasksViewModel::priorityTexts() const
{
    QStringList texts;
    for (const auto &entry : enumCases<TaskPriority>())
        texts.append(enumRawText(entry.value));
    return texts;
}

void TasksViewModel::renameTask(const QUuid &taskID, const QString &title)
{
    TaskOperations::rename(store(), taskID, LineText::singleLine(title));
}

void TasksViewModel::cycleTaskStatus(const QUuid &taskID)
{
    TaskOperations::cycleStatus(store(), taskID);
}

void TasksViewModel::setTaskStatus(const QUuid &taskID, int status)
{
    if (EnumChoices::isCase<TaskStatus>(status))
        TaskOperations::setStatus(store(), taskID, TaskStatus(status));
}

void TasksViewModel::cycleTaskPriority(const QUuid &taskID)
{
    TaskOperations::cyclePriority(store(), taskID);
}

void TasksViewModel::setTaskPriority(const QUuid &taskID, int priority)
{
    if (EnumChoices::isCase<TaskPriority>(priority))
        TaskOperations::setPriority(store(), taskID, TaskPriority(priority));
}

void TasksViewModel::setTaskDue(const QUuid &taskID, const QDateTime &due)
{
    TaskOperations::setDue(store(), taskID, due.isValid() ? std::optional(toTimestamp(due)) : std::nullopt);
}

void TasksViewModel::deleteTask(const QUuid &taskID)
{
    TaskOperations::remove(store(), taskID);
}

void TasksViewModel::timePassed()
{
    // A task leaves `upcoming` when its moment comes; nothing else here depends on less than a day.
    if (m_filter == TaskFilter::upcoming)
        requestWholeRefresh();
}

void TasksViewModel::refresh(const ChangeSet &changes)
{
    const RecordChanges &tasks = changes.of<TaskItem>();
    if (!m_day || tasks.isReloaded)
        m_day.emplace(clock());
    m_day->setNow(clock().now());
    if (!tasks.isReplacedOnly() || !updateRows(tasks.replaced))
        layOut();
}

bool TasksViewModel::updateRows(const QSet<QUuid> &changed)
{
    for (const QUuid &id : changed) {
        const TaskItem *task = store().tasks().first(id);
        const TaskRow *row = m_rows.find(id);
        const auto next = task && row ? TaskRows::updated(*row, *task, m_filter, *m_day) : std::nullopt;
        if (!next)
            return false;
        m_rows.updateRow(*next);
    }
    return true;
}

void TasksViewModel::layOut()
{
    auto list = TaskRows::build(store().tasks().all(), m_filter, m_showDone, *m_day);
    m_rows.setRows(std::move(list.rows));
    if (m_filtered == list.filtered)
        return;
    m_filtered = list.filtered;
    emit filteredChanged();
}

bool TasksViewModel::reveal(const UndoPlace &place)
{
    const auto row = std::ranges::find(m_rows.rows(), place.record, &TaskRow::id);
    if (row == m_rows.rows().end())
        return false;
    emit revealed(int(row - m_rows.rows().begin()));
    return true;
}
