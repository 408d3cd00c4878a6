#include "Features/Insights/InsightsPoints.h"

#include "Foundation/LineText.h"
#include "Support/HabitDays.h"
#include "Support/OVDate.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace
{
struct InsightsText {
    Q_DECLARE_TR_FUNCTIONS(InsightsText)
};

QString number(qint64 value)
{
    return QLocale(QLocale::English).toString(value);
}
} // namespace

QList<ChartPoint> InsightsPoints::ofStatuses(const InsightsQueries::TaskFigures &tasks)
{
    QList<ChartPoint> points;
    for (const auto &status : enumCases<TaskStatus>()) {
        const QString label = enumLabel(status.value);
        const qint64 count = tasks.of(status.value);
        points.append({label, label, double(count), number(count), enumSymbol(status.value)});
    }
    return points;
}

QList<ChartPoint> InsightsPoints::ofDays(const QList<InsightsQueries::DateBucket> &days)
{
    QList<ChartPoint> points;
    for (const auto &day : days)
        points.append({OVDate::weekdayLongDay(day.date), OVDate::medium(day.date), double(day.count),
                       number(day.count)});
    return points;
}

QList<ChartPoint> InsightsPoints::ofMonths(const QList<InsightsQueries::DateBucket> &months)
{
    QList<ChartPoint> points;
    for (const auto &month : months)
        points.append({OVDate::monthYear(month.date), OVDate::medium(month.date).section(u' ', 0, 0),
                       double(month.count), number(month.count)});
    return points;
}

QList<ChartPoint> InsightsPoints::ofProjects(const QList<InsightsQueries::ProjectFigure> &projects)
{
    QList<ChartPoint> points;
    for (const auto &project : projects) {
        const QString name = LineText::shownTitle(project.name);
        points.append({name, name, double(project.percent), InsightsText::tr("%1%").arg(project.percent)});
    }
    return points;
}

QList<ChartPoint> InsightsPoints::ofHabits(const QList<Habit> &habits, QDate today)
{
    QList<ChartPoint> points;
    for (const Habit &habit : habits) {
        const QString name = LineText::shownTitle(habit.name);
        const QString emoji = LineText::shown(habit.emoji);
        const qint64 count = HabitDays::weeklyCount(habit, today);
        points.append({name, emoji.isEmpty() ? name : emoji, double(count), number(count)});
    }
    return points;
}

bool InsightsPoints::isAllZero(const QList<ChartPoint> &points)
{
    return std::ranges::all_of(points, [](const ChartPoint &point) { return point.value == 0; });
}

QString InsightsPoints::table(const QString &labelHeading, const QString &valueHeading,
                              const QList<ChartPoint> &points)
{
    QString table = labelHeading + u'\t' + valueHeading + u'\n';
    for (const ChartPoint &point : points)
        table += point.label + u'\t' + QString::number(qint64(point.value)) + u'\n';
    return table;
}
