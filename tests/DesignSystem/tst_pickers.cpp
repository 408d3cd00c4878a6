#include "DesignSystem/ClockTime.h"
#include "DesignSystem/DateLabel.h"
#include "DesignSystem/DateMath.h"
#include "DesignSystem/MonthGrid.h"

#include <QAbstractItemModelTester>
#include <QTest>
#include <QTimeZone>

namespace
{

QDateTime newYork(int year, int month, int day, int hour, int minute)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), QTimeZone("America/New_York"));
}

QStringList cells(const MonthGrid &grid, int role)
{
    QStringList texts;
    for (int row = 0; row < grid.rowCount(); ++row)
        texts << grid.data(grid.index(row), role).toString();
    return texts;
}

} // namespace

class TestPickers : public QObject
{
    Q_OBJECT

private slots:
    void monthsKeepTheDayWhereTheyCan()
    {
        QCOMPARE(DateMath::monthsAway(QDate(2024, 1, 31), 1), QDate(2024, 2, 29));
        QCOMPARE(DateMath::monthsAway(QDate(2023, 1, 31), 1), QDate(2023, 2, 28));
        QCOMPARE(DateMath::monthsAway(QDate(2024, 12, 15), 1), QDate(2025, 1, 15));
        QCOMPARE(DateMath::monthsAway(QDate(1, 1, 15), -1), QDate(1, 1, 1));
        QCOMPARE(DateMath::monthsAway(QDate(9999, 12, 15), 1), QDate(9999, 12, 31));
    }

    void weeksBeginOnSunday()
    {
        QCOMPARE(DateMath::startOfWeek(QDate(2026, 11, 22)), QDate(2026, 11, 22));
        QCOMPARE(DateMath::startOfWeek(QDate(2026, 11, 28)), QDate(2026, 11, 22));
    }

    void timesThatTheClocksSkipMoveOn()
    {
        const QDateTime before = newYork(2026, 3, 7, 2, 30);
        const QDateTime moved = DateMath::onDay(before, QDate(2026, 3, 8));
        QVERIFY(moved.isValid());
        QCOMPARE(moved.date(), QDate(2026, 3, 8));
        QCOMPARE(moved.time(), QTime(3, 30));
        QCOMPARE(DateMath::atTime(newYork(2026, 3, 8, 12, 0), QTime(2, 15)).time(), QTime(3, 15));
    }

    void daysKeepTheTimeAcrossTheChangeOfClocks()
    {
        const QDateTime autumn = DateMath::onDay(newYork(2026, 10, 31, 9, 0), QDate(2026, 11, 1));
        QCOMPARE(autumn.time(), QTime(9, 0));
        QCOMPARE(newYork(2026, 10, 31, 9, 0).secsTo(autumn), 25 * 3600);
    }

    void gridShowsWholeWeeksFromSunday()
    {
        MonthGrid grid;
        QAbstractItemModelTester tester(&grid);
        grid.setNow(newYork(2024, 2, 29, 8, 0));
        QCOMPARE(grid.title(), "February 2024");
        const QStringList numbers = cells(grid, MonthGrid::Number);
        QCOMPARE(numbers.size(), 42);
        QCOMPARE(numbers.first(), "28");
        QCOMPARE(numbers.at(4), "1");
        QCOMPARE(numbers.at(32), "29");
        QCOMPARE(cells(grid, MonthGrid::InMonth).filter("true").size(), 29);
        QCOMPARE(cells(grid, MonthGrid::Today).indexOf("true"), 32);
        QCOMPARE(cells(grid, MonthGrid::Chosen).indexOf("true"), -1);
        QCOMPARE(grid.data(grid.index(32), MonthGrid::Label).toString(), "Thursday, 29 February 2024");
        QCOMPARE(grid.weekdays().first(), "Sun");
    }

    void cursorTurnsThePage()
    {
        MonthGrid grid;
        grid.setValue(newYork(2026, 11, 30, 18, 45));
        grid.moveDays(1);
        QCOMPARE(grid.title(), "December 2026");
        QCOMPARE(grid.cursorText(), "Tuesday, 1 December 2026");
        QCOMPARE(grid.momentAtCursor(), newYork(2026, 12, 1, 18, 45));
        grid.moveToWeekStart();
        QCOMPARE(grid.momentAtCursor().date(), QDate(2026, 11, 29));
        grid.moveToWeekEnd();
        QCOMPARE(grid.momentAtCursor().date(), QDate(2026, 12, 5));
        grid.moveMonths(-10);
        QCOMPARE(grid.momentAtCursor().date(), QDate(2026, 2, 5));
        grid.moveToCell(0);
        QCOMPARE(grid.momentAtCursor().date(), QDate(2026, 2, 1));
        QCOMPARE(cells(grid, MonthGrid::Chosen).indexOf("true"), -1);
    }

    void clockStepsWithinTheDay()
    {
        ClockTime clock;
        clock.setValue(newYork(2026, 11, 22, 23, 58));
        clock.step(ClockTime::Hours, 1);
        QCOMPARE(clock.value(), newYork(2026, 11, 22, 0, 58));
        clock.step(ClockTime::Minutes, 5);
        QCOMPARE(clock.value(), newYork(2026, 11, 22, 0, 3));
        clock.step(ClockTime::Minutes, -10);
        QCOMPARE(clock.minuteText(), "53");
        clock.step(ClockTime::Hours, -1);
        QCOMPARE(clock.hourText(), "23");
    }

    void clockTakesTypedDigits()
    {
        ClockTime clock;
        clock.setValue(newYork(2026, 11, 22, 9, 41));
        QVERIFY(!clock.typeDigit(ClockTime::Hours, 1));
        QVERIFY(clock.typeDigit(ClockTime::Hours, 7));
        QCOMPARE(clock.hourText(), "17");
        QVERIFY(clock.typeDigit(ClockTime::Hours, 8));
        QCOMPARE(clock.hourText(), "08");
        QVERIFY(!clock.typeDigit(ClockTime::Hours, 2));
        QVERIFY(clock.typeDigit(ClockTime::Hours, 7));
        QCOMPARE(clock.hourText(), "07");
        QVERIFY(!clock.typeDigit(ClockTime::Minutes, 0));
        QVERIFY(clock.typeDigit(ClockTime::Minutes, 5));
        QCOMPARE(clock.minuteText(), "05");
        clock.typeDigit(ClockTime::Minutes, 4);
        QCOMPARE(clock.minuteText(), "04");
        clock.endTyping();
        QVERIFY(!clock.typeDigit(ClockTime::Minutes, 2));
        QCOMPARE(clock.minuteText(), "02");
    }

    void labelNamesWhatIsShown()
    {
        DateLabel label;
        QCOMPARE(label.text(), QString());
        label.setProperty("value", newYork(2026, 3, 9, 7, 5));
        QCOMPARE(label.text(), "Mar 9, 2026");
        label.setProperty("showsTime", true);
        QCOMPARE(label.text(), "Mar 9, 2026, 07:05");
        label.setProperty("showsDate", false);
        QCOMPARE(label.text(), "07:05");
    }
};

QTEST_GUILESS_MAIN(TestPickers)
#include "tst_pickers.moc"
