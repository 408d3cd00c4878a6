#include "Features/Tasks/TaskRow.h"

#include "Features/Tasks/TaskFilters.h"

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

QDateTime TaskRow::dueDateTime() const
{
    return due ? toDateTime(*due, QTimeZone::utc()) : QDateTime();
}
