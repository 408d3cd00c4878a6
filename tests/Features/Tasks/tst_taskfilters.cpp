#include "Features/Tasks/TaskFilters.h"
#include "Harness/ManualClock.h"
#include "Support/OVDate.h"

#include <QDateTime>
#include <QTest>
#include <QTimeZone>

using namespace std::chrono_literals;

namespace
{
const QTimeZone &zone()
{
    static const QTimeZone newYork(QByteArrayLiteral("America/New_York"));
    return newYork;
}

/// An evening in New York, when it is another day in UTC already, in a week in which the clock is set
/// forward.
Timestamp now()
{
    return toTimestamp(QDateTime(QDate(2026, 3, 5), QTime(19, 30), zone()));
}

TaskDay day()
{
    ManualClock clock(zone());
    clock.setNow(now());
    return TaskDay(clock);
}

TaskItem task(const QString &title, std::optional<Timestamp> due = {}, TaskStatus status = TaskStatus::todo)
{
    TaskItem item;
    item.title = title;
    item.dueDate = due;
    item.status = status;
    return item;
}

QString shown(const QList<TaskItem> &tasks, TaskFilter filter)
{
    QString titles;
    for (const TaskItem *item : TaskFilters::filteredOpen(tasks, filter, day()))
        titles.append(item->title);
    return titles;
}
} // namespace

class TaskFiltersTest : public QObject
{
    Q_OBJECT

private slots:
    void allPutsDoneTasksLast();
    void filtersByDueDate_data();
    void filtersByDueDate();
    void doneTasksAreNeitherDueNorOverdue();
};

void TaskFiltersTest::allPutsDoneTasksLast()
{
    const QList<TaskItem> tasks{task(QStringLiteral("a"), {}, TaskStatus::done), task(QStringLiteral("b")),
                                task(QStringLiteral("c"), {}, TaskStatus::done),
                                task(QStringLiteral("d"), {}, TaskStatus::inProgress)};
    QCOMPARE(shown(tasks, TaskFilter::all), QStringLiteral("bdac"));
    QCOMPARE(shown(tasks, TaskFilter::open), QStringLiteral("bd"));
    QCOMPARE(shown(tasks, TaskFilter::today), QString());
    QCOMPARE(shown(tasks, TaskFilter::upcoming), QString());
}

void TaskFiltersTest::filtersByDueDate_data()
{
    QTest::addColumn<Timestamp>("due");
    QTest::addColumn<bool>("isToday");
    QTest::addColumn<bool>("isUpcoming");
    QTest::addColumn<bool>("isOverdue");
    QTest::addColumn<QString>("label");
    const QDate today = OVDate::day(now(), zone());
    const Timestamp start = OVDate::startOfDay(today, zone());
    const Timestamp tomorrow = OVDate::startOfDay(today.addDays(1), zone());
    const Timestamp end = OVDate::startOfDay(today.addDays(7), zone());
    const QString todayLabel = QStringLiteral("Today");
    QTest::newRow("last second of yesterday") << start - 1s << false << false << true << "Mar 4";
    QTest::newRow("start of today") << start << true << false << false << todayLabel;
    QTest::newRow("an hour ago") << now() - 1h << true << false << false << todayLabel;
    QTest::newRow("this moment") << now() << true << false << false << todayLabel;
    QTest::newRow("later today") << now() + 1s << true << true << false << todayLabel;
    QTest::newRow("last second of today") << tomorrow - 1s << true << true << false << todayLabel;
    QTest::newRow("start of tomorrow") << tomorrow << false << true << false << "Mar 6";
    QTest::newRow("start of the day in a week") << end << false << true << false << "Mar 12";
    QTest::newRow("a second later") << end + 1s << false << false << false << "Mar 12";
    QTest::newRow("last year") << now() - 365 * 24h << false << false << true << "Mar 5";
}

void TaskFiltersTest::filtersByDueDate()
{
    QFETCH(Timestamp, due);
    QFETCH(bool, isToday);
    QFETCH(bool, isUpcoming);
    QFETCH(bool, isOverdue);
    QFETCH(QString, label);
    const QList<TaskItem> tasks{task(QStringLiteral("due"), due)};
    QCOMPARE(!shown(tasks, TaskFilter::today).isEmpty(), isToday);
    QCOMPARE(!shown(tasks, TaskFilter::upcoming).isEmpty(), isUpcoming);
    QCOMPARE(TaskFilters::isOverdue(tasks.first(), day()), isOverdue);
    QCOMPARE(day().label(due), label);
}

void TaskFiltersTest::doneTasksAreNeitherDueNorOverdue()
{
    const QList<TaskItem> tasks{task(QStringLiteral("late"), now() - 48h, TaskStatus::done),
                                task(QStringLiteral("now"), now() + 1h, TaskStatus::done)};
    QCOMPARE(shown(tasks, TaskFilter::today), QString());
    QCOMPARE(shown(tasks, TaskFilter::upcoming), QString());
    QVERIFY(!TaskFilters::isOverdue(tasks.first(), day()));
    QVERIFY(!TaskFilters::isOverdue(task(QStringLiteral("undated")), day()));
}

QTEST_GUILESS_MAIN(TaskFiltersTest)
#include "tst_taskfilters.moc"
