#include "Session/TaskActions.h"

#include "Foundation/LineText.h"
#include "Store/TaskOperations.h"

TaskActions *TaskActions::create(QQmlEngine *engine, QJSEngine *script)
{
    return new TaskActions(OrvelSession::create(engine, script));
}

bool TaskActions::add(const QString &title)
{
    if (isBlank(title))
        return false;
    TaskOperations::create(store(), LineText::singleLine(title.trimmed()));
    return true;
}

void TaskActions::rename(const QUuid &taskID, const QString &title)
{
    TaskOperations::rename(store(), taskID, LineText::singleLine(title));
}

void TaskActions::toggleDone(const QUuid &taskID)
{
    TaskOperations::toggleDone(store(), taskID);
}

void TaskActions::cycleStatus(const QUuid &taskID)
{
    TaskOperations::cycleStatus(store(), taskID);
}

void TaskActions::setStatus(const QUuid &taskID, const QString &status)
{
    if (const auto value = enumFromRaw<TaskStatus>(status))
        TaskOperations::setStatus(store(), taskID, *value);
}

void TaskActions::cyclePriority(const QUuid &taskID)
{
    TaskOperations::cyclePriority(store(), taskID);
}

void TaskActions::setPriority(const QUuid &taskID, const QString &priority)
{
    if (const auto value = enumFromRaw<TaskPriority>(priority))
        TaskOperations::setPriority(store(), taskID, *value);
}

void TaskActions::setDue(const QUuid &taskID, const QDateTime &due)
{
    if (due.isValid())
        TaskOperations::setDue(store(), taskID, toTimestamp(due));
}

void TaskActions::clearDue(const QUuid &taskID)
{
    TaskOperations::setDue(store(), taskID, std::nullopt);
}

void TaskActions::remove(const QUuid &taskID)
{
    TaskOperations::remove(store(), taskID);
}
