#include "Features/Insights/InsightsQueries.h"
#include "Support/OVDate.h"

#include <QtTest>

using namespace InsightsQueries;
using enum TaskStatus;

namespace
{
const QDate today(2026, 3, 13);

Timestamp at(QDate day, const QTimeZone &zone, int hour = 12)
{
    return toTimestamp(QDateTime(day, QTime(hour, 0), zone));
}

TaskItem task(TaskStatus status, std::optional<Timestamp> completed, Timestamp updated = {})
{
    return {.id = QUuid::createUuid(), .status = status, .updatedDate = updated, .completedDate = completed};
}

/// The counts of the buckets, such as "0 0 1".
QString counts(const QList<DateBucket> &buckets)
{
    QStringList texts;
    for (const DateBucket &bucket : buckets)
        texts.append(QString::number(bucket.count));
    return texts.join(u' ');
}
} // namespace

class InsightsQueriesTest : public QObject
{
    Q_OBJECT

private slots:
    void completionsFallOnTheirDay();
    void daysFollowTheCalendar_data();
    void daysFollowTheCalendar();
    void statusesAndPercent_data();
    void statusesAndPercent();
    void monthsStepByTheCalendar();
    void projectsAreSortedStably();
};

void InsightsQueriesTest::completionsFallOnTheirDay()
{
    const QTimeZone zone = QTimeZone::utc();
    const QList<TaskItem> list{
        task(done, at(today, zone, 0)),
        task(done, at(today, zone, 23)),
        task(done, at(today.addDays(-13), zone, 0)),
        task(done, at(today.addDays(-14), zone, 23)),
        task(done, at(today.addDays(1), zone, 0)),
        // Without a date of completion, that of the last change counts.
        task(done, std::nullopt, at(today.addDays(-1), zone)),
        task(done, at(today.addDays(-3), zone), at(today, zone)),
        task(todo, std::nullopt, at(today, zone)),
    };
    const TaskFigures figures = tasks(list, today, zone);
    QCOMPARE(counts(figures.completions), QStringLiteral("1 0 0 0 0 0 0 0 0 0 1 0 1 2"));
    QCOMPARE(figures.completions.first().date, today.addDays(-13));
    QCOMPARE(figures.completions.last().date, today);
}

void InsightsQueriesTest::daysFollowTheCalendar_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::newRow("clocks go forward") << QByteArray("America/New_York") << QDate(2026, 3, 13);
    QTest::newRow("clocks go back") << QByteArray("Europe/Berlin") << QDate(2026, 10, 30);
    QTest::newRow("midnight is skipped") << QByteArray("America/Santiago") << QDate(2026, 9, 12);
}

void InsightsQueriesTest::daysFollowTheCalendar()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QDate, day);
    const QTimeZone place(zone);
    QList<Page> list;
    for (const QDate each : OVDate::days(day.addDays(-20), day.addDays(5)))
        for (const int hour : {1, 23})
            list.append({.id = QUuid::createUuid(), .createdDate = at(each, place, hour)});
    QCOMPARE(counts(pages(list, day, place)), QStringLiteral("2 2 2 2 2 2 2 2 2 2 2 2 2 2"));
}

void InsightsQueriesTest::statusesAndPercent_data()
{
    QTest::addColumn<int>("doneCount");
    QTest::addColumn<int>("openCount");
    QTest::addColumn<int>("percent");
    QTest::newRow("no tasks") << 0 << 0 << 0;
    QTest::newRow("none done") << 0 << 3 << 0;
    QTest::newRow("all done") << 3 << 0 << 100;
    QTest::newRow("a third") << 1 << 2 << 33;
    QTest::newRow("two thirds") << 2 << 1 << 67;
    QTest::newRow("halves go up") << 1 << 199 << 1;
    QTest::newRow("below a half") << 1 << 201 << 0;
}

void InsightsQueriesTest::statusesAndPercent()
{
    QFETCH(const int, doneCount);
    QFETCH(const int, openCount);
    QList<TaskItem> list;
    for (int i = 0; i < doneCount; ++i)
        list.append(task(done, std::nullopt));
    for (int i = 0; i < openCount; ++i)
        list.append(task(i % 2 ? todo : inProgress, std::nullopt));
    const TaskFigures figures = tasks(list, today, QTimeZone::utc());
    QTEST(figures.all().percent(), "percent");
    QCOMPARE(figures.of(done), doneCount);
    QCOMPARE(figures.of(todo), openCount / 2);
    QCOMPARE(figures.of(inProgress), openCount - openCount / 2);
}

void InsightsQueriesTest::monthsStepByTheCalendar()
{
    const QTimeZone zone("Pacific/Auckland");
    const QDate lastOfMonth(2026, 3, 31);
    QList<CalendarEvent> list;
    for (const QDate day : {QDate(2025, 9, 30), QDate(2025, 10, 1), QDate(2025, 12, 31), QDate(2026, 2, 28),
                            QDate(2026, 2, 1), QDate(2026, 3, 31), QDate(2026, 4, 1)})
        list.append({.id = QUuid::createUuid(), .date = at(day, zone, 0)});
    const QList<DateBucket> months = events(list, lastOfMonth, zone);
    QCOMPARE(counts(months), QStringLiteral("1 0 1 0 2 1"));
    QCOMPARE(months.at(4).date, QDate(2026, 2, 1));
}

void InsightsQueriesTest::projectsAreSortedStably()
{
    QList<Project> list;
    QList<TaskItem> tasksOfAll;
    const auto add = [&](const QString &name, int doneCount, int openCount, bool isTemplate = false) {
        const Project project{.id = QUuid::createUuid(), .name = name, .isTemplate = isTemplate};
        list.append(project);
        for (int i = 0; i < doneCount + openCount; ++i) {
            tasksOfAll.append(task(i < doneCount ? done : todo, std::nullopt));
            tasksOfAll.last().projectID = project.id;
        }
    };
    add(QStringLiteral("empty"), 0, 0);
    add(QStringLiteral("half"), 1, 1);
    add(QStringLiteral("template"), 5, 0, true);
    add(QStringLiteral("other half"), 2, 2);
    add(QStringLiteral("done"), 3, 0);
    QStringList names;
    for (const ProjectFigure &figure : projects(list, tasks(tasksOfAll, today, QTimeZone::utc()).byProject))
        names.append(figure.name + u' ' + QString::number(figure.percent));
    QCOMPARE(names.join(u','), QStringLiteral("done 100,half 50,other half 50,empty 0"));
}

QTEST_GUILESS_MAIN(InsightsQueriesTest)
#include "tst_insightsqueries.moc"
