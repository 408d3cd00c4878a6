#include "Support/HabitDays.h"
#include "Support/OVDate.h"
#include "Support/OVQuotes.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

using namespace Qt::StringLiterals;

class PracticeTest : public QObject
{
    Q_OBJECT

private:
    /// Completions so many days before the day.
    static Habit habit(QDate day, const QList<int> &daysBefore)
    {
        Habit habit;
        for (const int before : daysBefore)
            habit.completions.insert(OVDate::dayKey(day.addDays(-before)));
        return habit;
    }

private slots:
    void streaks_data()
    {
        QTest::addColumn<QList<int>>("daysBefore");
        QTest::addColumn<int>("streak");
        QTest::newRow("never") << QList<int>{} << 0;
        QTest::newRow("today") << QList<int>{0} << 1;
        QTest::newRow("yesterday and before, today open") << QList<int>{1, 2} << 2;
        QTest::newRow("today too") << QList<int>{0, 1, 2} << 3;
        QTest::newRow("a gap yesterday") << QList<int>{0, 2, 3} << 1;
        QTest::newRow("two days missed") << QList<int>{2, 3} << 0;
        QTest::newRow("the future does not count") << QList<int>{-1, -2, 1} << 1;
        QTest::newRow("once a week") << QList<int>{0, 7, 14} << 1;
    }
    /// Over an ordinary week, a leap day, the turn of a year and the changes of daylight saving.
    void streaks()
    {
        QFETCH(QList<int>, daysBefore);
        QFETCH(int, streak);
        for (const QDate day : {QDate(2026, 7, 15), QDate(2024, 3, 1), QDate(2026, 1, 1), QDate(2026, 3, 9),
                                QDate(2026, 11, 2)})
            QCOMPARE(HabitDays::currentStreak(habit(day, daysBefore), day), streak);
    }

    void weeksBeginOnSunday_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<int>("count");
        QTest::newRow("Sunday") << QDate(2026, 3, 8) << 1;
        QTest::newRow("Monday") << QDate(2026, 3, 9) << 2;
        QTest::newRow("Saturday") << QDate(2026, 3, 14) << 7;
        QTest::newRow("over the year's end") << QDate(2026, 1, 1) << 5;
    }
    void weeksBeginOnSunday()
    {
        QFETCH(QDate, today);
        QFETCH(int, count);
        QCOMPARE(HabitDays::weeklyCount(habit(today, {-2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8}), today), count);
    }

    void quotesAreWhole()
    {
        QSet<QString> ids, texts;
        for (const Quote &quote : OVQuotes::all()) {
            ids.insert(quote.id);
            texts.insert(quote.text);
            QVERIFY(!quote.author.isEmpty() && quote.text.endsWith(u'.') != quote.text.endsWith(u'?'));
        }
        QCOMPARE(ids.size(), 40);
        QCOMPARE(texts.size(), 40);
    }

    void quotesChangeAtLocalMidnight()
    {
        const QTimeZone zone("Pacific/Auckland");
        const auto at = [&zone](QDate day, QTime time) { return toTimestamp(QDateTime(day, time, zone)); };
        const QDate day(2026, 4, 5);
        QCOMPARE(OVQuotes::dayIndex(at({2020, 9, 14}, {0, 0}), zone), 0);
        QCOMPARE(OVQuotes::dayIndex(at({2020, 9, 15}, {0, 0}), zone), 1);
        QCOMPARE(OVQuotes::dayIndex(at({1999, 1, 1}, {0, 0}), zone), 0);
        const Quote today = OVQuotes::ofTheDay(at(day, {0, 0}), zone);
        QCOMPARE(OVQuotes::ofTheDay(at(day, {23, 59, 59}), zone), today);
        QVERIFY(OVQuotes::ofTheDay(at(day.addDays(1), {0, 0}), zone) != today);
        QCOMPARE(OVQuotes::ofTheDay(at(day.addDays(40), {12, 0}), zone), today);
    }

    void shufflingReachesAllButTheExcluded()
    {
        QRandomGenerator generator(9);
        const Quote excluded = OVQuotes::all()[17];
        QMap<QString, int> counts;
        for (int i = 0; i < 39'000; ++i)
            ++counts[OVQuotes::random(excluded, generator).id];
        QCOMPARE(counts.size(), 39);
        QVERIFY(!counts.contains(excluded.id));
        for (const int count : counts)
            QVERIFY(count > 800 && count < 1200);
        QSet<QString> all;
        for (int i = 0; i < 2000; ++i)
            all.insert(OVQuotes::random({}, generator).id);
        QCOMPARE(all.size(), 40);
    }
};

QTEST_GUILESS_MAIN(PracticeTest)
#include "tst_practice.moc"
