#include "Features/Habits/HabitsViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"
#include "Support/HabitDays.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace std::chrono_literals;

namespace
{
void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}
} // namespace

/// The clock starts on Friday, 2026-03-13.
class HabitsViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void countsStreaks_data();
    void countsStreaks();
    void showsTheWeek();
    void figuresAddUp();
    void addsTheHabitOfTheForm();
    void blankNamesAddNothing();
    void flipsDaysOfThisWeekOnly();
    void goalsStayWithinAWeek();
    void followsMidnightAndTimeZone();
    void undoRestoresHabitAndFigures();
    void aToggleTellsOneRow();

private:
    HabitRow row(int index) const
    {
        const QAbstractItemModel *const model = m_model->rows();
        const auto value = [&](const char *role) {
            return model->index(index, 0).data(model->roleNames().key(role));
        };
        return {.id = value("habitID").toUuid(),
                .isPrompt = value("kind").toString() == QStringLiteral("prompt"),
                .name = value("name").toString(),
                .isDoneToday = value("isDoneToday").toBool(),
                .streak = value("streak").toInt(),
                .target = value("target").toInt()};
    }
    QString weekText(int index) const
    {
        return m_model->rows()->index(index, 0).data(m_model->rows()->roleNames().key("weekText")).toString();
    }
    /// The week as "x" for a done day, "." for another and "-" for one to come.
    QString week(int index) const
    {
        QString text;
        const HabitRow shown = HabitRow::of(*m_workspace.store().list<Habit>().first(row(index).id),
                                            m_workspace.clock().today());
        for (const HabitDay &day : shown.days)
            text += day.isFuture ? u'-' : day.isDone ? u'x' : u'.';
        return text;
    }
    QUuid add(const QString &name, const QList<int> &daysAgo = {}, int target = 7)
    {
        const QUuid id(m_workspace.addHabit(name, daysAgo, target));
        finishTurn();
        return id;
    }
    QString figures() const
    {
        return m_model->doneText() + u' ' + m_model->bestStreakText() + u' ' + m_model->weekText();
    }

    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<HabitsViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void HabitsViewModelTest::init()
{
    m_workspace.clock().setTimeZone(QTimeZone::utc());
    m_workspace.reset();
    m_model = std::make_unique<HabitsViewModel>();
    m_model->setSession(&m_session);
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model->rows());
}

void HabitsViewModelTest::cleanup()
{
    m_tester.reset();
    m_model.reset();
}

void HabitsViewModelTest::countsStreaks_data()
{
    QTest::addColumn<QStringList>("days");
    QTest::addColumn<int>("streak");
    const auto row = [](const char *name, const QString &days, int streak) {
        QTest::newRow(name) << days.split(u' ', Qt::SkipEmptyParts) << streak;
    };
    row("nothing done", QString(), 0);
    row("only today", QStringLiteral("2026-03-13"), 1);
    row("today still open", QStringLiteral("2026-03-11 2026-03-12"), 2);
    row("with today", QStringLiteral("2026-03-11 2026-03-12 2026-03-13"), 3);
    row("a gap yesterday", QStringLiteral("2026-03-11 2026-03-13"), 1);
    row("over since the day before yesterday", QStringLiteral("2026-03-10 2026-03-11"), 0);
    row("across months and the change of clocks",
        QStringLiteral(
            "2026-02-27 2026-02-28 2026-03-01 2026-03-02 2026-03-03 2026-03-04 2026-03-05 2026-03-06 "
            "2026-03-07 2026-03-08 2026-03-09 2026-03-10 2026-03-11 2026-03-12"),
        14);
    row("days to come do not count", QStringLiteral("2026-03-13 2026-03-14 2026-03-15"), 1);
    row("texts that are no days stand between",
        QStringLiteral("2026-03-11x 2026-03-11 2026-03-12 2026-03-12z"), 2);
}

void HabitsViewModelTest::countsStreaks()
{
    QFETCH(const QStringList, days);
    Habit habit;
    for (const QString &day : days)
        habit.completions.insert(day);
    QTEST(int(HabitDays::currentStreak(habit, QDate(2026, 3, 13))), "streak");
}

void HabitsViewModelTest::showsTheWeek()
{
    add(QStringLiteral("Read"), {0, 1, 5, 6}, 3);
    add(QStringLiteral("Run"));
    QCOMPARE(m_model->rows()->rowCount(), 3);
    QCOMPARE(row(0).streak, 2);
    QVERIFY(row(0).isDoneToday);
    QCOMPARE(weekText(0), QStringLiteral("3/3 this week"));
    QCOMPARE(week(0), QStringLiteral("x...xx-"));
    QCOMPARE(weekText(1), QStringLiteral("0/7 this week"));
    QVERIFY(row(2).isPrompt);
    m_model->setComposing(true);
    finishTurn();
    QCOMPARE(m_model->rows()->rowCount(), 2);
}

void HabitsViewModelTest::figuresAddUp()
{
    QVERIFY(m_model->isEmpty());
    QCOMPARE(m_model->rows()->rowCount(), 0);
    add(QStringLiteral("a"), {0, 1, 2});
    add(QStringLiteral("b"), {1, 2, 3, 4, 5, 6});
    add(QStringLiteral("c"));
    QVERIFY(!m_model->isEmpty());
    QCOMPARE(figures(), QStringLiteral("1/3 6 8"));
    m_model->toggleToday(row(2).id);
    m_model->remove(row(1).id);
    finishTurn();
    QCOMPARE(figures(), QStringLiteral("2/2 3 4"));
}

void HabitsViewModelTest::addsTheHabitOfTheForm()
{
    m_model->setComposing(true);
    m_model->setName(QStringLiteral("  Walk\nafter lunch "));
    m_model->setProperty("emoji", QStringLiteral("🚶"));
    m_model->setAccent(QStringLiteral("teal"));
    m_model->setProperty("target", 3);
    m_model->addHabit();
    const Habit habit = m_workspace.store().list<Habit>().at(0);
    QCOMPARE(habit.name, QStringLiteral("Walk after lunch"));
    QCOMPARE(habit.emoji, QStringLiteral("🚶"));
    QCOMPARE(habit.accent, AccentPalette::teal);
    QCOMPARE(habit.targetPerWeek, 3);
    QCOMPARE(habit.sortOrder, 1773394200.0);
    QCOMPARE(habit.createdDate, m_workspace.clock().now());
    QVERIFY(!m_model->isComposing());
    QCOMPARE(m_model->name(), QString());
    QCOMPARE(m_model->property("emoji").toString(), QStringLiteral("🔥"));
    QCOMPARE(m_model->property("target").toInt(), 7);
    QCOMPARE(m_model->accent(), QStringLiteral("teal"));
}

void HabitsViewModelTest::blankNamesAddNothing()
{
    m_model->setComposing(true);
    m_model->setName(QStringLiteral(" \n "));
    QVERIFY(!m_model->canAdd());
    m_model->addHabit();
    QCOMPARE(m_workspace.store().list<Habit>().size(), 0);
    QVERIFY(m_model->isComposing());
}

void HabitsViewModelTest::flipsDaysOfThisWeekOnly()
{
    const QUuid id = add(QStringLiteral("Read"), {1});
    m_model->toggleDay(id, 3);
    m_model->toggleDay(id, 6);
    m_model->toggleDay(QUuid::createUuid(), 1);
    finishTurn();
    QCOMPARE(week(0), QStringLiteral("...xx.-"));
    QCOMPARE(row(0).streak, 2);
    m_model->toggleDay(id, 4);
    finishTurn();
    QCOMPARE(week(0), QStringLiteral("...x..-"));
    QCOMPARE(row(0).streak, 0);
}

void HabitsViewModelTest::goalsStayWithinAWeek()
{
    const QUuid id = add(QStringLiteral("Read"));
    for (const auto &[asked, kept] : {std::pair(0, 1), std::pair(5, 5), std::pair(9, 7)}) {
        m_model->setHabitTarget(id, asked);
        finishTurn();
        QCOMPARE(row(0).target, kept);
    }
}

void HabitsViewModelTest::followsMidnightAndTimeZone()
{
    add(QStringLiteral("Read"), {0, 1});
    QCOMPARE(figures(), QStringLiteral("1/1 2 2"));
    m_workspace.clock().advance(24h);
    finishTurn();
    QCOMPARE(figures(), QStringLiteral("0/1 2 2"));
    m_workspace.clock().advance(24h);
    finishTurn();
    // A new week has begun, and nothing was done yesterday.
    QCOMPARE(figures(), QStringLiteral("0/1 0 0"));
    QCOMPARE(week(0), QStringLiteral(".------"));
    // West of midnight it is still the evening before.
    m_workspace.clock().setTimeZone(QTimeZone(-10 * 3600));
    finishTurn();
    QCOMPARE(figures(), QStringLiteral("0/1 2 2"));
}

void HabitsViewModelTest::undoRestoresHabitAndFigures()
{
    add(QStringLiteral("a"), {0, 1});
    const QUuid second = add(QStringLiteral("b"), {0});
    m_model->remove(second);
    QCOMPARE(m_session.undo()->message(), QStringLiteral("Habit deleted"));
    m_session.undo()->undo();
    finishTurn();
    QCOMPARE(row(1).name, QStringLiteral("b"));
    QCOMPARE(figures(), QStringLiteral("2/2 2 3"));
}

void HabitsViewModelTest::aToggleTellsOneRow()
{
    for (int i = 0; i < 20; ++i)
        add(QString::number(i), {0, 1, 2});
    QSignalSpy changes(m_model->rows(), &QAbstractItemModel::dataChanged);
    m_model->toggleToday(row(7).id);
    finishTurn();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.at(0).at(0).toModelIndex().row(), 7);
    QCOMPARE(changes.at(0).at(1).toModelIndex().row(), 7);
}

QTEST_GUILESS_MAIN(HabitsViewModelTest)
#include "tst_habitsviewmodel.moc"
