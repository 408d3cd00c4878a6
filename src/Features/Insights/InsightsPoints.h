#pragma once

#include "DesignSystem/ChartPoint.h"
#include "Features/Insights/InsightsQueries.h"
#include "Models/Habit.h"

/// The numbers as charts show them.
namespace InsightsPoints
{
QList<ChartPoint> ofStatuses(const InsightsQueries::TaskFigures &tasks);
QList<ChartPoint> ofDays(const QList<InsightsQueries::DateBucket> &days);
QList<ChartPoint> ofMonths(const QList<InsightsQueries::DateBucket> &months);
QList<ChartPoint> ofProjects(const QList<InsightsQueries::ProjectFigure> &projects);
/// The days done of this week.
QList<ChartPoint> ofHabits(const QList<Habit> &habits, QDate today);

/// Whether every value is 0.
bool isAllZero(const QList<ChartPoint> &points);
/// A table with tabs between its columns, the headings first.
QString table(const QString &labelHeading, const QString &valueHeading, const QList<ChartPoint> &points);
} // namespace InsightsPoints
