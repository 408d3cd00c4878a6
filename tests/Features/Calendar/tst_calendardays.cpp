#include "Features/Calendar/CalendarPeriod.h"
#include "Features/Calendar/DayItems.h"
#include "Harness/TestWorkspace.h"
#include "Store/EventOperations.h"
#include "Support/OVDate.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using enum CalendarMode;

class CalendarDaysTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_workspace.reset(); }

    void steps_data();
    void steps();
    void showsWholePeriods_data();
    void showsWholePeriods();
    void ordersTheItemsOfADay();
    void findsTasksByTheDayOfTheTimeZone_data();
    void findsTasksByTheDayOfTheTimeZone();

private:
    /// Of the items on a day: id's first letter, time, title and "x" if done.
    static QString told(const QList<DayItem> &items)
    {
        QStringList texts;
        for (const DayItem &item : items)
            texts.append(item.id.first(1) + item.timeLabel.value_or(u""_s) + u' ' + item.title +
                         (item.done ? u" x"_s : u""_s));
        return texts.join(u", "_s);
    }

    TestWorkspace m_workspace;
};

void CalendarDaysTest::steps_data()
{
    QTest::addColumn<CalendarMode>("mode");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<int>("delta");
    QTest::addColumn<QDate>("to");
    QTest::newRow("31 January, a month on") << month << QDate(2026, 1, 31) << 1 << QDate(2026, 2, 28);
    QTest::newRow("a month back over a year") << month << QDate(2026, 1, 5) << -1 << QDate(2025, 12, 5);
    QTest::newRow("a week") << week << QDate(2026, 3, 28) << 1 << QDate(2026, 4, 4);
    QTest::newRow("a day") << day << QDate(2024, 2, 28) << 1 << QDate(2024, 2, 29);
    QTest::newRow("an agenda") << agenda << QDate(2026, 3, 13) << -1 << QDate(2026, 2, 11);
    QTest::newRow("the end of time") << month << QDate(9999, 12, 3) << 1 << QDate(9999, 12, 3);
    QTest::newRow("the beginning") << day << QDate(1, 1, 1) << -1 << QDate(1, 1, 1);
}

void CalendarDaysTest::steps()
{
    QFETCH(CalendarMode, mode);
    QFETCH(QDate, from);
    QFETCH(int, delta);
    QTEST(CalendarPeriod::stepped(mode, from, delta), "to");
}

void CalendarDaysTest::showsWholePeriods_data()
{
    QTest::addColumn<CalendarMode>("mode");
    QTest::addColumn<QDate>("cursor");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("label");
    QTest::newRow("ordinary month") << month << QDate(2026, 3, 13) << QDate(2026, 3, 1) << 35
                                    << u"March 2026"_s;
    QTest::newRow("four rows") << month << QDate(2026, 2, 28) << QDate(2026, 2, 1) << 28
                               << u"February 2026"_s;
    QTest::newRow("six rows") << month << QDate(2026, 8, 1) << QDate(2026, 7, 26) << 42 << u"August 2026"_s;
    QTest::newRow("week with a change of the clocks")
        << week << QDate(2026, 4, 4) << QDate(2026, 3, 29) << 7 << u"Week of Mar 29"_s;
    QTest::newRow("day") << day << QDate(2026, 1, 1) << QDate(2026, 3, 13) << 1
                         << u"Friday, March 13, 2026"_s;
    QTest::newRow("agenda") << agenda << QDate(2026, 1, 5) << QDate(2026, 1, 5) << 30
                            << u"Agenda · next 30 days"_s;
}

void CalendarDaysTest::showsWholePeriods()
{
    QFETCH(CalendarMode, mode);
    QFETCH(QDate, cursor);
    const QDate selected(2026, 3, 13);
    const QList<QDate> days = CalendarPeriod::days(mode, cursor, selected);
    QTEST(days.first(), "first");
    QTEST(int(days.size()), "count");
    QCOMPARE(days.first().daysTo(days.last()), days.size() - 1);
    QTEST(CalendarPeriod::label(mode, cursor, selected), "label");
}

void CalendarDaysTest::ordersTheItemsOfADay()
{
    const Timestamp now = m_workspace.clock().now();
    const auto add = [&](const QString &title, std::optional<qint64> minutes,
                         EventKind kind = EventKind::event) {
        EventOperations::create(m_workspace.store(), title, now, minutes, kind);
    };
    m_workspace.addTask(u"late task"_s, u"todo"_s, u"medium"_s, 14);
    m_workspace.addTask(u"done"_s, u"done"_s, u"medium"_s, 0);
    m_workspace.addTask(u"tomorrow"_s, u"todo"_s, u"medium"_s, 14.6);
    add(u"evening"_s, 23 * 60 + 5, EventKind::reminder);
    add(u"midnight"_s, 0);
    add(u"first"_s, std::nullopt, EventKind::deadline);
    add(u"second"_s, std::nullopt);
    const QList<QDate> week = CalendarPeriod::days(CalendarMode::week, m_workspace.clock().today(), {});
    const DayItems items(m_workspace.store(), week);
    const QList<DayItem> today = items.on(m_workspace.clock().today());
    QCOMPARE(told(today), u"e first, e second, e00:00 midnight, e23:05 evening, t late task, t done x"_s);
    QCOMPARE(told(items.on(m_workspace.clock().today().addDays(1))), u"t tomorrow"_s);
    QCOMPARE(today[0].kindLabel, u"Deadline"_s);
    QCOMPARE(today[0].tone, BadgeTone::warning);
    QCOMPARE(today[3].tone, BadgeTone::info);
    QCOMPARE(today[4].kindLabel, u"Task"_s);
    QVERIFY(!today[4].eventID && today[0].eventID);
}

void CalendarDaysTest::findsTasksByTheDayOfTheTimeZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDateTime>("due");
    QTest::addColumn<QDate>("day");
    const auto utc = [](int month, int day, int hour, int minute) {
        return QDateTime({2026, month, day}, {hour, minute}, QTimeZone::utc());
    };
    QTest::newRow("a moment before midnight")
        << QByteArray("Europe/Berlin") << utc(3, 12, 22, 59) << QDate(2026, 3, 12);
    QTest::newRow("midnight") << QByteArray("Europe/Berlin") << utc(3, 12, 23, 0) << QDate(2026, 3, 13);
    QTest::newRow("the last hour of the day that has 23")
        << QByteArray("Europe/Berlin") << utc(3, 29, 21, 59) << QDate(2026, 3, 29);
    QTest::newRow("the hour after it")
        << QByteArray("Europe/Berlin") << utc(3, 29, 22, 0) << QDate(2026, 3, 30);
    QTest::newRow("a day without midnight")
        << QByteArray("Africa/Cairo") << utc(4, 23, 22, 0) << QDate(2026, 4, 24);
}

void CalendarDaysTest::findsTasksByTheDayOfTheTimeZone()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDateTime, due);
    QFETCH(QDate, day);
    m_workspace.clock().setTimeZone(QTimeZone(zone));
    const auto restore = qScopeGuard([this] { m_workspace.clock().setTimeZone(QTimeZone::utc()); });
    TaskOperations::create(m_workspace.store(), u"task"_s, TaskPriority::medium, toTimestamp(due));
    const QList<QDate> days = CalendarPeriod::days(month, day, day);
    const DayItems items(m_workspace.store(), days);
    for (const QDate shown : days)
        QCOMPARE(told(items.on(shown)), shown == day ? u"t task"_s : QString());
}

QTEST_GUILESS_MAIN(CalendarDaysTest)
#include "tst_calendardays.moc"
