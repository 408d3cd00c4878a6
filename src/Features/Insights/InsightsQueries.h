#pragma once

#include "Models/CalendarEvent.h"
#include "Models/Page.h"
#include "Models/Project.h"
#include "Models/TaskItem.h"

#include <QDate>
#include <QHash>
#include <QTimeZone>

/// The numbers behind the charts of the user's work. Each query goes over its records once.
namespace InsightsQueries
{
inline constexpr int windowDays = 14;
inline constexpr int windowMonths = 6;

/// How much falls on a day, or in the month that the day begins.
struct DateBucket {
    QDate date;
    qint64 count = 0;

    bool operator==(const DateBucket &) const = default;
};

struct DoneOfAll {
    qint64 done = 0;
    qint64 total = 0;

    /// Rounded to the nearest whole number, halves up; 0 where there is nothing.
    int percent() const { return total > 0 ? int((done * 200 + total) / (total * 2)) : 0; }
    bool operator==(const DoneOfAll &) const = default;
};

struct TaskFigures {
    /// By `TaskStatus`.
    std::array<qint64, enumCases<TaskStatus>().size()> byStatus{};
    /// The last fourteen days, oldest first.
    QList<DateBucket> completions;
    QHash<QUuid, DoneOfAll> byProject;

    qint64 of(TaskStatus status) const { return byStatus.at(std::size_t(status)); }
    DoneOfAll all() const;
};

struct ProjectFigure {
    QString name;
    int percent = 0;

    bool operator==(const ProjectFigure &) const = default;
};

/// A task that is done counts on the day of its completion, or of its last change where that is not known.
TaskFigures tasks(const QList<TaskItem> &tasks, QDate today, const QTimeZone &zone);
/// Pages and notes by the day they were made, over the last fourteen days.
QList<DateBucket> pages(const QList<Page> &pages, QDate today, const QTimeZone &zone);
/// Over the last six months, this one included.
QList<DateBucket> events(const QList<CalendarEvent> &events, QDate today, const QTimeZone &zone);
/// All projects but templates, the furthest first, else in their order.
QList<ProjectFigure> projects(const QList<Project> &projects, const QHash<QUuid, DoneOfAll> &tasksByProject);
} // namespace InsightsQueries
