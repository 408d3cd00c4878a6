#include "Features/Tasks/TaskRow.h"

#include "Features/Tasks/TaskFilters.h"
#include "Foundation/BadgeTone.h"

TaskRow TaskRow::ofTask(const TaskItem &task, const TaskDay &day)
{
    return {.id = task.id,
            .title = task.title,
            .status = task.status,
            .priority = task.priority,
            .due = task.dueDate,
            .dueText = task.dueDate ? day.label(*task.dueDate) : QString(),
            .isOverdue = TaskFilters::isOverdue(task, day)};
}

TaskRow TaskRow::completedHeader(qsizetype count)
{
    static const QUuid id(QStringLiteral("{8B9A4C1E-63B7-4F0D-9E55-0C2D7A4E1F90}"));
    return {.id = id, .kind = Kind::completedHeader, .count = int(count)};
}

QString TaskRow::kindText() const
{
    return enumRawText(kind);
}

int TaskRow::statusTone() const
{
    switch (status) {
    case TaskStatus::todo:
        break;
    case TaskStatus::inProgress:
        return int(BadgeTone::warning);
    case TaskStatus::done:
        return int(BadgeTone::success);
    }
    return int(BadgeTone::neutral);
}

int TaskRow::priorityTone() const
{
    switch (priority) {
    case TaskPriority::low:
        break;
    case TaskPriority::medium:
        return int(BadgeTone::warning);
    case TaskPriority::high:
        return int(BadgeTone::danger);
    }
    return int(BadgeTone::neutral);
}

QDateTime TaskRow::dueDateTime() const
{
    return due ? toDateTime(*due, QTimeZone::utc()) : QDateTime();
}
