#include "Features/Insights/InsightsQueries.h"

#include "Support/OVDate.h"

#include <algorithm>

namespace
{
using namespace InsightsQueries;

/// Counts moments into days or months that follow each other.
class Buckets
{
public:
    /// @param end the day after the last bucket
    Buckets(const QList<QDate> &dates, QDate end, const QTimeZone &zone)
    {
        for (const QDate date : dates) {
            m_buckets.append({date, 0});
            m_starts.append(OVDate::startOfDay(date, zone));
        }
        m_end = OVDate::startOfDay(end, zone);
    }

    void count(Timestamp moment)
    {
        if (moment < m_starts.first() || moment >= m_end)
            return;
        const auto next = std::ranges::upper_bound(m_starts, moment);
        ++m_buckets[next - m_starts.begin() - 1].count;
    }

    const QList<DateBucket> &buckets() const { return m_buckets; }

private:
    QList<DateBucket> m_buckets;
    QList<Timestamp> m_starts;
    Timestamp m_end;
};

Buckets lastDays(QDate today, const QTimeZone &zone)
{
    return {OVDate::days(today.addDays(1 - windowDays), today), today.addDays(1), zone};
}

Buckets lastMonths(QDate today, const QTimeZone &zone)
{
    QList<QDate> months;
    for (int offset = 1 - windowMonths; offset <= 0; ++offset)
        months.append(OVDate::startOfMonth(today.addMonths(offset)));
    return {months, OVDate::endOfMonth(today).addDays(1), zone};
}
} // namespace

InsightsQueries::DoneOfAll InsightsQueries::TaskFigures::all() const
{
    DoneOfAll all{.done = of(TaskStatus::done)};
    for (const qint64 count : byStatus)
        all.total += count;
    return all;
}

InsightsQueries::TaskFigures InsightsQueries::tasks(const QList<TaskItem> &tasks, QDate today,
                                                    const QTimeZone &zone)
{
    TaskFigures figures;
    Buckets completions = lastDays(today, zone);
    for (const TaskItem &task : tasks) {
        ++figures.byStatus.at(std::size_t(task.status));
        const bool isDone = task.status == TaskStatus::done;
        if (isDone)
            completions.count(task.completedDate.value_or(task.updatedDate));
        if (!task.projectID)
            continue;
        DoneOfAll &project = figures.byProject[*task.projectID];
        ++project.total;
        project.done += isDone ? 1 : 0;
    }
    figures.completions = completions.buckets();
    return figures;
}

QList<InsightsQueries::DateBucket> InsightsQueries::pages(const QList<Page> &pages, QDate today,
                                                          const QTimeZone &zone)
{
    Buckets created = lastDays(today, zone);
    for (const Page &page : pages)
        created.count(page.createdDate);
    return created.buckets();
}

QList<InsightsQueries::DateBucket> InsightsQueries::events(const QList<CalendarEvent> &events, QDate today,
                                                           const QTimeZone &zone)
{
    Buckets dates = lastMonths(today, zone);
    for (const CalendarEvent &event : events)
        dates.count(event.date);
    return dates.buckets();
}

QList<InsightsQueries::ProjectFigure> InsightsQueries::projects(const QList<Project> &projects,
                                                                const QHash<QUuid, DoneOfAll> &tasksByProject)
{
    QList<ProjectFigure> figures;
    for (const Project &project : projects)
        if (!project.isTemplate)
            figures.append({project.name, tasksByProject.value(project.id).percent()});
    std::ranges::stable_sort(figures, std::ranges::greater(), &ProjectFigure::percent);
    return figures;
}
