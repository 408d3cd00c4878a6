#include "Features/Tasks/TasksViewModel.h"

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
    TaskOperations::create(store(), LineText::singleLine(m_title.trimmed()), m_priority, due);
    setTitle({});
    if (std::exchange(m_dueEnabled, false))
        emit dueEnabledChanged();
    setPriority(enumRawText(TaskPriority::medium));
}

void TasksViewModel::setPriority(const QString &priority)
{
    const auto value = enumFromRaw<TaskPriority>(priority);
    if (!value || *value == m_priority)
        return;
    m_priority = *value;
    emit priorityChanged();
}

void TasksViewModel::setFilter(const QString &filter)
{
    const auto value = enumFromRaw<TaskFilter>(filter);
    if (!value || *value == m_filter)
        return;
    m_filter = *value;
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
