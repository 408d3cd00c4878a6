#include "Features/Focus/FocusViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"

#include <QtTest>

namespace
{
void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}
} // namespace

class FocusViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void saysWhatItIsDoing();
    void presetsWaitForTheSession();
    void offersOpenTasks();
    void tilesFollowTheLength();
    void goingDropsTheSession();
    void hiddenItIsNotWoken();
    void midnightAndTimeZonesLeaveASessionAlone();
    void suspendPausesTheCount();

private:
    void pass(double seconds)
    {
        m_workspace.advanceSeconds(seconds);
        m_session.focus()->check();
    }
    QString state() const
    {
        return m_model->timeText() + u' ' + m_model->stateText() + u' ' + m_model->primaryText() +
               (m_model->canLog() ? QStringLiteral(" log") : QString());
    }
    QString tasks() const
    {
        QStringList titles;
        for (int row = 0; row < m_model->tasks()->rowCount(); ++row)
            titles.append(
                m_model->tasks()->index(row, 0).data(m_model->tasks()->roleNames().key("title")).toString());
        return titles.join(u',');
    }

    /// A machine whose uptime stands still while it is suspended.
    Machine machine()
    {
        Machine machine = m_workspace.machine();
        machine.uptime = [this] { return m_workspace.clock().now().time_since_epoch() - m_suspended; };
        return machine;
    }

    TestWorkspace m_workspace;
    std::chrono::milliseconds m_suspended{0};
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui(), nullptr, machine()};
    std::unique_ptr<FocusViewModel> m_model;
};

void FocusViewModelTest::init()
{
    m_workspace.reset();
    m_session.preferences().setValue(QStringLiteral("orvel.focus.day"), QString());
    m_model = std::make_unique<FocusViewModel>();
    m_model->setSession(&m_session);
}

void FocusViewModelTest::saysWhatItIsDoing()
{
    QCOMPARE(state(), QStringLiteral("25:00 Ready Start"));
    QCOMPARE(m_model->primarySymbol(), QStringLiteral("play.fill"));
    m_model->logSession();
    QCOMPARE(m_model->sessionsText(), QStringLiteral("0"));
    m_model->toggleRunning();
    QCOMPARE(state(), QStringLiteral("25:00 Focusing Pause log"));
    QCOMPARE(m_model->primarySymbol(), QStringLiteral("pause.fill"));
    pass(61);
    m_model->toggleRunning();
    QCOMPARE(state(), QStringLiteral("23:59 Paused Resume log"));
    m_model->logSession();
    QCOMPARE(state(), QStringLiteral("25:00 Ready Start"));
    QCOMPARE(m_model->sessionsText(), QStringLiteral("1"));
    m_model->toggleRunning();
    pass(1501);
    QCOMPARE(state(), QStringLiteral("25:00 Ready Start"));
    QCOMPARE(m_model->sessionsText(), QStringLiteral("2"));
}

void FocusViewModelTest::presetsWaitForTheSession()
{
    m_model->choosePreset(3);
    QCOMPARE(m_model->timeText(), QStringLiteral("60:00"));
    m_model->toggleRunning();
    m_model->choosePreset(0);
    m_model->choosePreset(-1);
    m_model->choosePreset(4);
    QCOMPARE(m_model->minutes(), 60);
    QCOMPARE(state(), QStringLiteral("60:00 Focusing Pause log"));
}

void FocusViewModelTest::offersOpenTasks()
{
    QVERIFY(!m_model->hasTasks());
    const QString plan = m_workspace.addTask(QStringLiteral("Plan"));
    m_workspace.addTask(QStringLiteral("Old"), QStringLiteral("done"));
    m_workspace.addTask(QStringLiteral("Write"), QStringLiteral("inProgress"));
    finishTurn();
    QCOMPARE(tasks(), QStringLiteral("Plan,Write"));
    QCOMPARE(m_model->taskIndex(), -1);
    m_model->linkTask(2);
    QVERIFY(!m_model->hasTask());
    m_model->linkTask(0);
    QCOMPARE(m_model->taskTitle(), QStringLiteral("Plan"));
    QCOMPARE(m_model->taskStatus().symbol, QStringLiteral("circle"));
    QCOMPARE(m_model->taskIndex(), 0);
    // A task that is done meanwhile stays linked.
    m_workspace.finishTask(plan);
    finishTurn();
    QCOMPARE(tasks(), QStringLiteral("Write"));
    QCOMPARE(m_model->taskIndex(), -1);
    QCOMPARE(m_model->taskStatus().symbol, QStringLiteral("checkmark.circle.fill"));
    QSignalSpy changes(m_model.get(), &FocusViewModel::taskChanged);
    m_workspace.store().erase<TaskItem>(QUuid(plan));
    finishTurn();
    QVERIFY(!changes.isEmpty());
    QVERIFY(!m_model->hasTask());
}

void FocusViewModelTest::tilesFollowTheLength()
{
    m_workspace.store().changeSettings([](AppSettings &settings) { settings.defaultFocusMinutes = 50; });
    finishTurn();
    QCOMPARE(m_model->defaultText(), QStringLiteral("50 min"));
    QCOMPARE(m_model->minutes(), 25);
    for (int i = 0; i < 3; ++i) {
        m_model->toggleRunning();
        m_model->logSession();
    }
    QCOMPARE(m_model->minutesText(), QStringLiteral("75"));
    m_model->choosePreset(0);
    QCOMPARE(m_model->minutesText(), QStringLiteral("45"));
}

void FocusViewModelTest::goingDropsTheSession()
{
    m_model->toggleRunning();
    pass(60);
    m_model.reset();
    QVERIFY(!m_session.focus()->isRunning());
    pass(3000);
    QCOMPARE(m_session.focus()->sessions(), 0);
    QCOMPARE(m_workspace.told(), QStringList());
}

void FocusViewModelTest::hiddenItIsNotWoken()
{
    const auto *const sleep = m_session.focus()->findChild<QTimer *>();
    m_model->toggleRunning();
    QVERIFY(sleep->intervalAsDuration() > std::chrono::minutes(20));
    m_model->setWatched(true);
    QVERIFY(sleep->intervalAsDuration() < std::chrono::seconds(2));
    m_model.reset();
    QVERIFY(!sleep->isActive());
}

void FocusViewModelTest::midnightAndTimeZonesLeaveASessionAlone()
{
    m_workspace.clock().advance(std::chrono::minutes(14 * 60 + 15));
    m_model->toggleRunning();
    m_model->logSession();
    m_model->toggleRunning();
    pass(15 * 60);
    // A minute after midnight, in the evening before it, and in the afternoon after it.
    for (const int hoursFromUtc : {0, -5, 14}) {
        m_workspace.clock().setTimeZone(QTimeZone(hoursFromUtc * 3600));
        finishTurn();
        pass(60);
        QCOMPARE(m_model->sessionsText(), QStringLiteral("1"));
    }
    QCOMPARE(state(), QStringLiteral("07:00 Focusing Pause log"));
    // West of midnight it is the same day for a screen that opens, east of it a new one.
    m_workspace.clock().setTimeZone(QTimeZone(-5 * 3600));
    m_session.focus()->open(m_model.get());
    QCOMPARE(m_model->sessionsText(), QStringLiteral("1"));
    QCOMPARE(state(), QStringLiteral("25:00 Ready Start"));
    m_workspace.clock().setTimeZone(QTimeZone::utc());
    m_session.focus()->open(m_model.get());
    QCOMPARE(m_model->sessionsText(), QStringLiteral("0"));
}

void FocusViewModelTest::suspendPausesTheCount()
{
    m_model->setWatched(true);
    m_model->toggleRunning();
    pass(10 * 60);
    // The lid is closed over midnight.
    m_suspended += std::chrono::hours(20);
    pass(20 * 3600);
    QCOMPARE(state(), QStringLiteral("15:00 Focusing Pause log"));
    QCOMPARE(m_model->progress(), 0.4);
    QCOMPARE(m_workspace.told(), QStringList());
    pass(15 * 60 + 1);
    QCOMPARE(state(), QStringLiteral("25:00 Ready Start"));
    QCOMPARE(m_model->sessionsText(), QStringLiteral("1"));
    QCOMPARE(m_workspace.told().size(), 1);
}

QTEST_GUILESS_MAIN(FocusViewModelTest)
#include "tst_focusviewmodel.moc"
