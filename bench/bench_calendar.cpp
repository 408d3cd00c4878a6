#include "Features/Calendar/ICalendarReader.h"
#include "Features/Calendar/ICalendarWriter.h"
#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>

#include <cstdio>
#include <random>

namespace
{
constexpr int fewCount = 10;

/// As many events as tasks with due dates, spread over a year around today.
Snapshot workspaceOf(int count)
{
    const QDateTime noon(QDate::currentDate(), {12, 0});
    std::mt19937 random(5);
    const auto moment = [&] { return toTimestamp(noon.addDays(int(random() % 365) - 182)); };
    Snapshot workspace;
    for (int i = 0; i < count; ++i) {
        CalendarEvent event{.id = QUuid::createUuid(), .title = QStringLiteral("Review the draft %1").arg(i)};
        event.date = event.createdDate = moment();
        if (i % 3 > 0)
            event.timeMinutes = random() % 1440;
        workspace.list<CalendarEvent>().append(event);
        TaskItem task{.id = QUuid::createUuid(), .title = QStringLiteral("Answer the letter %1").arg(i)};
        task.dueDate = task.createdDate = task.updatedDate = moment();
        workspace.list<TaskItem>().append(task);
    }
    return workspace;
}

/// The calendar over a workspace.
class CalendarScene : public Scene
{
public:
    explicit CalendarScene(const Snapshot &workspace)
        : Scene(workspace, "import Orvel.Calendar\nCalendarView { focus: true }")
    {
    }

    Comparison::Duration arrow() { return press(m_count++ % 8 < 4 ? Qt::Key_Right : Qt::Key_Left); }
    Comparison::Duration month() { return press(m_count++ % 12 < 6 ? Qt::Key_PageDown : Qt::Key_PageUp); }
    /// Each mode in turn.
    Comparison::Duration mode()
    {
        static constexpr std::array keys{Qt::Key_W, Qt::Key_D, Qt::Key_A, Qt::Key_M};
        return press(keys.at(std::size_t(m_count++ % 4)));
    }

private:
    int m_count = 0;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Snapshot workspace = WorkspaceGenerator::ofBusyYears();
    CalendarScene many(workspace);
    CalendarScene few(workspaceOf(fewCount));
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    const auto limit = [&](Comparison &comparison, const QString &what, const auto &times, double share,
                           double most) {
        comparison.timeUnder(QStringLiteral("%1, 10,000 events and tasks against 10, %2 of 100")
                                 .arg(what)
                                 .arg(qRound(share * 100)),
                             Comparison::quantile(times.ours, share),
                             Comparison::quantile(times.baseline, share), milliseconds(most));
    };

    Comparison comparison;
    limit(comparison, QStringLiteral("open the calendar"),
          Comparison::alternate(20, [&] { return many.open(); }, [&] { return few.open(); }), 0.5, 100);
    if (!many.focusItem() || !few.focusItem()) {
        std::fprintf(stderr, "bench_calendar: the keys go nowhere\n");
        return 2;
    }
    const auto keys = Comparison::alternate(200, [&] { return many.arrow(); }, [&] { return few.arrow(); });
    const auto months = Comparison::alternate(120, [&] { return many.month(); }, [&] { return few.month(); });
    const auto modes = Comparison::alternate(80, [&] { return many.mode(); }, [&] { return few.mode(); });
    for (const double share : {0.5, 0.95}) {
        limit(comparison, QStringLiteral("arrow key in a month"), keys, share, 8);
        limit(comparison, QStringLiteral("step to another month"), months, share, 32);
        limit(comparison, QStringLiteral("go to another mode"), modes, share, 100);
    }

    const auto &events = workspace.list<CalendarEvent>();
    const Timestamp now = toTimestamp(QDateTime::currentDateTimeUtc());
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const QByteArray file = ICalendarWriter::write(events, {}, zone, now);
    const auto files = Comparison::alternate(
        5, [&] { return timed([&] { (void)ICalendarReader::read(file, {.zone = zone, .now = now}); }); },
        [&] { return timed([&] { (void)ICalendarWriter::write(events, {}, zone, now); }); });
    comparison.timeUnder(QStringLiteral("read a calendar file of 10,000 events, against writing it"),
                         Comparison::quantile(files.ours, 0.5), Comparison::quantile(files.baseline, 0.5),
                         milliseconds(900));
    return comparison.exitCode();
}
