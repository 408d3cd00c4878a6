#include "Features/Tasks/TasksViewModel.h"

#include "Foundation/EnumChoices.h"
#include "Foundation/LineText.h"
#include "Store/TaskOperations.h"

#include <utility>

TasksViewModel::TasksViewModel(QObject *parent) : QObject(parent), m_refresh([this] { refresh(); }) {}

void TasksViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    if (m_store) {
        m_store->disconnect(this);
        m_store->clock().disconnect(this);
    }
    m_store = store;
    if (m_store) {
        connect(m_store, &WorkspaceStore::changed, this, &TasksViewModel::follow);
        connect(&m_store->clock(), &Clock::dayChanged, this, &TasksViewModel::requestLayout);
        connect(&m_store->clock(), &Clock::ticked, this, &TasksViewModel::timePassed);
        m_due = toDateTime(m_store->clock().now(), m_store->clock().timeZone());
        emit dueChanged();
    }
    emit storeChanged();
    m_layoutNeeded = true;
    refresh();
}

void TasksViewModel::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    emit activeChanged();
    refresh();
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
    if (!m_store || !canAdd())
        return;
    const auto due = m_dueEnabled ? std::optional(toTimestamp(m_due)) : std::nullopt;
    TaskOperations::create(*m_store, LineText::singleLine(m_title.trimmed()), TaskPriority(m_priority), due);
    setTitle({});
    if (std::exchange(m_dueEnabled, false))
        emit dueEnabledChanged();
    if (std::exchange(m_priority, int(TaskPriority::medium)) != m_priority)
        emit priorityChanged();
}

void TasksViewModel::setFilter(int filter)
{
    if (filter == int(m_filter) || !EnumChoices::isCase<TaskFilter>(filter))
        return;
    m_filter = TaskFilter(filter);
    emit filterChanged();
    requestLayout();
}

void TasksViewModel::setShowDone(bool showDone)
{
    if (m_showDone == showDone)
        return;
    m_showDone = showDone;
    emit showDoneChanged();
    requestLayout();
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
    TaskOperations::rename(*m_store, taskID, LineText::singleLine(title));
}

void TasksViewModel::cycleTaskStatus(const QUuid &taskID)
{
    TaskOperations::cycleStatus(*m_store, taskID);
}

void TasksViewModel::setTaskStatus(const QUuid &taskID, int status)
{
    if (EnumChoices::isCase<TaskStatus>(status))
        TaskOperations::setStatus(*m_store, taskID, TaskStatus(status));
}

void TasksViewModel::cycleTaskPriority(const QUuid &taskID)
{
    TaskOperations::cyclePriority(*m_store, taskID);
}

void TasksViewModel::setTaskPriority(const QUuid &taskID, int priority)
{
    if (EnumChoices::isCase<TaskPriority>(priority))
        TaskOperations::setPriority(*m_store, taskID, TaskPriority(priority));
}

void TasksViewModel::setTaskDue(const QUuid &taskID, const QDateTime &due)
{
    TaskOperations::setDue(*m_store, taskID, due.isValid() ? std::optional(toTimestamp(due)) : std::nullopt);
}

void TasksViewModel::deleteTask(const QUuid &taskID)
{
    TaskOperations::remove(*m_store, taskID);
}

void TasksViewModel::follow(const ChangeSet &changes)
{
    const RecordChanges &tasks = changes.of<TaskItem>();
    if (tasks.isEmpty())
        return;
    m_changedTasks += tasks.replaced;
    m_layoutNeeded |= !tasks.isReplacedOnly();
    m_refresh.request();
}

void TasksViewModel::timePassed()
{
    // A task leaves `upcoming` when its moment comes; nothing else here depends on less than a day.
    if (m_filter == TaskFilter::upcoming)
        requestLayout();
}

void TasksViewModel::requestLayout()
{
    m_layoutNeeded = true;
    m_refresh.request();
}

void TasksViewModel::refresh()
{
    if (!m_active || !m_store)
        return;
    if (m_layoutNeeded || !updateRows())
        layOut();
    m_layoutNeeded = false;
    m_changedTasks.clear();
}

bool TasksViewModel::updateRows()
{
    const TaskDay day(m_store->clock());
    for (const QUuid &id : std::as_const(m_changedTasks)) {
        const TaskItem *task = m_store->tasks().first(id);
        const TaskRow *row = m_rows.find(id);
        const auto next = task && row ? TaskRows::updated(*row, *task, m_filter, day) : std::nullopt;
        if (!next)
            return false;
        m_rows.updateRow(*next);
    }
    return true;
}

void TasksViewModel::layOut()
{
    auto list = TaskRows::build(m_store->tasks().all(), m_filter, m_showDone, TaskDay(m_store->clock()));
    m_rows.setRows(std::move(list.rows));
    if (std::exchange(m_filtered, list.filtered) != m_filtered)
        emit filteredChanged();
}
