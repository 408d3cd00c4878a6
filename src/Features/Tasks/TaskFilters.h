#pragma once

#include "Foundation/EnumTable.h"
#include "Models/TaskItem.h"

#include <QDate>
#include <QList>
#include <QTimeZone>

enum class TaskFilter { all, open, today, upcoming };

template <>
struct EnumTable<TaskFilter> {
    static constexpr auto cases = std::to_array<EnumCase<TaskFilter>>({
        {TaskFilter::all, "all", u"All"},
        {TaskFilter::open, "open", u"Open"},
        {TaskFilter::today, "today", u"Today"},
        {TaskFilter::upcoming, "upcoming", u"Upcoming"},
    });
};

/// Which tasks a list shows, and how it shows when one is due.
namespace TaskFilters
{
/// Those that are not done, and those that are, in their given order.
QList<TaskItem> openTasks(const QList<TaskItem> &tasks);
QList<TaskItem> doneTasks(const QList<TaskItem> &tasks);

/// The tasks that the list shows under this filter: `all` puts the done ones after the open ones, `today`
/// takes the open ones of this calendar day, `upcoming` the open ones from this moment until the start of the
/// day in a week, that moment included.
QList<TaskItem> filteredOpen(const QList<TaskItem> &tasks, TaskFilter filter, Timestamp now,
                             const QTimeZone &zone);

/// "Today", or the day without its year.
QString dueLabel(QDate due, QDate today);
/// Whether the task should have been done on a day before today; a done task never is overdue.
bool isOverdue(const TaskItem &task, QDate today, const QTimeZone &zone);
} // namespace TaskFilters
