#include "Features/MenuBar/MenuBarViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class MenuBarViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void movesOnAtMidnight();
    void countsAnewInAnotherZone();
    void catchesUpAfterASuspend();

private:
    /// The tasks due, the habits done today and the greeting.
    QString shown() const
    {
        QCoreApplication::sendPostedEvents();
        QStringList titles;
        for (const MenuBarTask &task : m_model->taskList())
            titles.append(task.title);
        return u"%1, %2 done, %3"_s.arg(titles.join(u' '))
            .arg(m_model->habitCount())
            .arg(m_model->greeting());
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui(), nullptr, m_workspace.machine()};
    std::unique_ptr<MenuBarViewModel> m_model;
};

/// Half past nine in the morning, with a task for now and one for 20 hours later, and a habit done today.
void MenuBarViewModelTest::init()
{
    m_workspace.clock().setTimeZone(QTimeZone::utc());
    m_workspace.reset();
    m_workspace.addTask(u"first"_s, u"todo"_s, u"medium"_s, 0);
    m_workspace.addTask(u"second"_s, u"todo"_s, u"medium"_s, 20);
    m_workspace.addHabit(u"Read"_s, {0});
    m_model = std::make_unique<MenuBarViewModel>();
    m_model->setSession(&m_session);
    QCOMPARE(shown(), u"first, 1 done, Good morning"_s);
}

void MenuBarViewModelTest::movesOnAtMidnight()
{
    m_workspace.advanceHours(14);
    QCOMPARE(shown(), u"first, 1 done, Good evening"_s);
    m_workspace.advanceHours(1);
    QCOMPARE(shown(), u"second, 0 done, Still up"_s);
    m_workspace.advanceHours(24);
    QCOMPARE(shown(), u", 0 done, Still up"_s);
}

void MenuBarViewModelTest::countsAnewInAnotherZone()
{
    // Shortly after midnight the second task is due within the same day.
    m_workspace.clock().setTimeZone(QTimeZone(-9 * 3600));
    QCOMPARE(shown(), u"first second, 1 done, Still up"_s);
    // In the evening before, nothing was done yet.
    m_workspace.clock().setTimeZone(QTimeZone(-11 * 3600));
    QCOMPARE(shown(), u"first, 0 done, Good evening"_s);
    m_workspace.clock().setTimeZone(QTimeZone::utc());
    QCOMPARE(shown(), u"first, 1 done, Good morning"_s);
}

void MenuBarViewModelTest::catchesUpAfterASuspend()
{
    // One jump of the clock within the day, and one over two midnights.
    m_workspace.advanceHours(5);
    QCOMPARE(shown(), u"first, 1 done, Good afternoon"_s);
    m_workspace.advanceHours(43);
    QCOMPARE(shown(), u", 0 done, Good morning"_s);
}

QTEST_MAIN(MenuBarViewModelTest)
#include "tst_menubarviewmodel.moc"
