#include "Features/Habits/HabitsViewModel.h"
#include "Features/Insights/InsightsViewModel.h"
#include "Harness/Comparison.h"
#include "Harness/Desk.h"
#include "Store/TaskOperations.h"
#include "Support/OVDate.h"

#include <QCoreApplication>

namespace
{
constexpr int habitCount = 200;
constexpr int daysPerHabit = 3650;
constexpr int taskCount = 100'000;
constexpr int eventCount = 50'000;
constexpr int projectCount = 60;

Snapshot habits()
{
    const QDate today = QDate::currentDate();
    Snapshot workspace;
    for (int i = 0; i < habitCount; ++i) {
        Habit habit{.id = QUuid::createUuid(), .name = QStringLiteral("Habit %1").arg(i), .targetPerWeek = 7};
        for (int day = 1; day <= daysPerHabit; ++day)
            habit.completions.insert(OVDate::dayKey(today.addDays(-day)));
        workspace.list<Habit>().append(habit);
    }
    return workspace;
}

Snapshot work()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Snapshot workspace;
    for (int i = 0; i < projectCount; ++i)
        workspace.list<Project>().append(
            {.id = QUuid::createUuid(), .name = QStringLiteral("Project %1").arg(i)});
    for (int i = 0; i < taskCount; ++i) {
        const Timestamp moment = toTimestamp(now.addSecs(-qint64(i) * 97));
        TaskItem task{.id = QUuid::createUuid(), .title = QStringLiteral("Task %1").arg(i)};
        task.status = TaskStatus(i % 3);
        task.createdDate = task.updatedDate = moment;
        if (task.status == TaskStatus::done)
            task.completedDate = moment;
        if (i % 2)
            task.projectID = workspace.list<Project>().at(i % projectCount).id;
        workspace.list<TaskItem>().append(task);
    }
    for (int i = 0; i < eventCount; ++i)
        workspace.list<CalendarEvent>().append(
            {.id = QUuid::createUuid(), .date = toTimestamp(now.addSecs(-qint64(i) * 433))});
    return workspace;
}

/// What a screen would do that counts each streak anew, day by day.
Comparison::Duration countEveryStreak(const WorkspaceStore &store)
{
    return timed([&store] {
        qsizetype best = 0;
        for (const Habit &habit : store.list<Habit>()) {
            qsizetype days = 0;
            for (QDate day = store.clock().today().addDays(-1);
                 habit.completions.contains(OVDate::dayKey(day)); day = day.addDays(-1))
                ++days;
            best = std::max(best, days);
        }
        if (best != daysPerHabit)
            std::exit(2);
    });
}

/// What the obvious queries would do: one pass over the records for each day and each month.
Comparison::Duration countByDay(const WorkspaceStore &store)
{
    return timed([&store] {
        const QTimeZone zone = store.clock().timeZone();
        const QDate today = store.clock().today();
        qsizetype found = 0;
        for (const QDate day : OVDate::days(today.addDays(-13), today))
            for (const TaskItem &task : store.tasks())
                found += task.status == TaskStatus::done &&
                         OVDate::day(task.completedDate.value_or(task.updatedDate), zone) == day;
        for (int offset = -5; offset <= 0; ++offset)
            for (const CalendarEvent &event : store.list<CalendarEvent>())
                found += OVDate::startOfMonth(OVDate::day(event.date, zone)) ==
                         OVDate::startOfMonth(today.addMonths(offset));
        if (found == 0)
            std::exit(2);
    });
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    Comparison comparison;

    {
        Desk desk(habits());
        HabitsViewModel screen;
        screen.setSession(desk.session.get());
        int habit = 0;
        const auto toggles = Comparison::alternate(
            20,
            [&] {
                const QUuid id = desk.store->list<Habit>().at(habit++ % habitCount).id;
                return timed([&] {
                    screen.toggleToday(id);
                    QCoreApplication::sendPostedEvents();
                });
            },
            [&] { return countEveryStreak(*desk.store); });
        for (const int share : {50, 95})
            comparison.timeUnder(
                QStringLiteral("flip today of one of 200 habits with ten years of days, against counting all "
                               "streaks, %1 of 100")
                    .arg(share),
                Comparison::quantile(toggles.ours, share / 100.0),
                Comparison::quantile(toggles.baseline, share / 100.0), milliseconds(8));
    }

    Desk desk(work());
    InsightsViewModel screen;
    screen.setSession(desk.session.get());
    const QUuid task = desk.store->tasks().at(taskCount / 2).id;
    const CalendarEvent event = desk.store->list<CalendarEvent>().at(eventCount / 2);
    qint64 minutes = 0;
    const auto counts = Comparison::alternate(
        20,
        [&] {
            TaskOperations::cycleStatus(*desk.store, task);
            desk.store->change<CalendarEvent>(
                event.id, [&](CalendarEvent &changed) { changed.timeMinutes = ++minutes; });
            return timed([&screen] { screen.flush(); });
        },
        [&] { return countByDay(*desk.store); });
    for (const int share : {50, 95})
        comparison.timeUnder(
            QStringLiteral("count 100,000 tasks and 50,000 events for the charts, against one pass a day, %1 "
                           "of 100")
                .arg(share),
            Comparison::quantile(counts.ours, share / 100.0),
            Comparison::quantile(counts.baseline, share / 100.0), milliseconds(16));
    return comparison.exitCode();
}
