#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"
#include "Store/ProjectOperations.h"

#include <QtTest>

using namespace std::chrono_literals;

class FocusTimerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void countsWholeSeconds();
    void aSessionRestsAtZeroForASecond();
    void sleepAndStallsLoseNothing();
    void pausingKeepsTheRemainder();
    void resetAndLengthsDropTheRemainder();
    void loggingCountsAWholeSession();
    void notesTheSessionInTheProject();
    void tellsWhenASessionIsOver();
    void sessionsBelongToTheirDay();
    void oddLengthsWork_data();
    void oddLengthsWork();
    void leavingDropsTheSession();
    void looksOnlyWhenWatched();
    void preferencesOutliveTheProgram();

private:
    FocusTimer &timer() { return *m_session->focus(); }
    void pass(std::chrono::milliseconds time)
    {
        m_uptime += time;
        timer().check();
    }

    std::chrono::milliseconds m_uptime = 5h;
    QStringList m_told;
    TestWorkspace m_workspace;
    std::unique_ptr<Preferences> m_preferences;
    std::unique_ptr<OrvelSession> m_session;
};

void FocusTimerTest::init()
{
    m_workspace.reset();
    m_told.clear();
    m_preferences = std::make_unique<Preferences>();
    Machine machine{.preferences = m_preferences.get()};
    machine.uptime = [this] { return m_uptime; };
    machine.notify = [this](const QString &title, const QString &text) {
        m_told.append(title + u'|' + text);
    };
    m_session = std::make_unique<OrvelSession>(&m_workspace.store(), &m_workspace.ui(), nullptr, machine);
    timer().open(this);
}

void FocusTimerTest::countsWholeSeconds()
{
    QCOMPARE(timer().timeText(), QStringLiteral("25:00"));
    QVERIFY(!timer().isBegun());
    pass(10s);
    QCOMPARE(timer().remaining(), 1500);
    timer().toggleRunning();
    pass(999ms);
    QCOMPARE(timer().remaining(), 1500);
    pass(1ms);
    QCOMPARE(timer().timeText(), QStringLiteral("24:59"));
    QVERIFY(timer().isBegun());
    pass(749s);
    QCOMPARE(timer().progress(), 0.5);
    QCOMPARE(FocusTimer::timeText(3600), QStringLiteral("60:00"));
}

void FocusTimerTest::aSessionRestsAtZeroForASecond()
{
    timer().toggleRunning();
    for (int i = 0; i < 1500; ++i)
        pass(1s);
    QCOMPARE(timer().timeText(), QStringLiteral("00:00"));
    QVERIFY(timer().isRunning());
    QCOMPARE(timer().progress(), 1.0);
    QCOMPARE(timer().sessions(), 0);
    pass(1s);
    QVERIFY(!timer().isRunning());
    QCOMPARE(timer().timeText(), QStringLiteral("25:00"));
    QCOMPARE(timer().sessions(), 1);
}

void FocusTimerTest::sleepAndStallsLoseNothing()
{
    timer().toggleRunning();
    pass(60s);
    // The machine sleeps for a night: the clock on the wall goes on, uptime does not.
    m_workspace.clock().advance(9h);
    timer().check();
    QCOMPARE(timer().timeText(), QStringLiteral("24:00"));
    // It is too busy to look for ten minutes.
    pass(10min);
    QCOMPARE(timer().timeText(), QStringLiteral("14:00"));
    QVERIFY(timer().isRunning());
}

void FocusTimerTest::pausingKeepsTheRemainder()
{
    timer().toggleRunning();
    pass(90s);
    timer().toggleRunning();
    pass(1h);
    QVERIFY(!timer().isRunning());
    QCOMPARE(timer().timeText(), QStringLiteral("23:30"));
    timer().toggleRunning();
    pass(30s);
    QCOMPARE(timer().timeText(), QStringLiteral("23:00"));
    // Paused at zero, the next start begins anew.
    pass(23min);
    timer().toggleRunning();
    QCOMPARE(timer().remaining(), 0);
    timer().toggleRunning();
    QCOMPARE(timer().timeText(), QStringLiteral("25:00"));
    QVERIFY(timer().isRunning());
}

void FocusTimerTest::resetAndLengthsDropTheRemainder()
{
    timer().toggleRunning();
    pass(90s);
    timer().setMinutes(45);
    QCOMPARE(timer().minutes(), 25);
    timer().reset();
    QVERIFY(!timer().isRunning());
    QCOMPARE(timer().timeText(), QStringLiteral("25:00"));
    timer().toggleRunning();
    pass(90s);
    timer().toggleRunning();
    timer().setMinutes(45);
    QCOMPARE(timer().timeText(), QStringLiteral("45:00"));
    QCOMPARE(timer().sessions(), 0);
}

void FocusTimerTest::loggingCountsAWholeSession()
{
    timer().toggleRunning();
    pass(90s);
    timer().toggleRunning();
    timer().complete();
    QCOMPARE(timer().sessions(), 1);
    QVERIFY(!timer().isBegun());
    QCOMPARE(m_told, QStringList());
}

void FocusTimerTest::notesTheSessionInTheProject()
{
    WorkspaceStore &store = m_workspace.store();
    const QUuid project = *ProjectOperations::createBlank(store, QStringLiteral("Book"));
    const QUuid task(m_workspace.addTask(QStringLiteral("Write")));
    const auto before = store.list<Activity>().size();
    timer().setTaskID(task);
    timer().complete();
    QCOMPARE(store.list<Activity>().size(), before);
    store.change<TaskItem>(task, [&](TaskItem &item) { item.projectID = project; });
    timer().complete();
    const Activity noted = store.list<Activity>().all().last();
    QCOMPARE(noted.projectID, project);
    QCOMPARE(noted.text, QStringLiteral("Focused 25 minutes"));
    QCOMPARE(noted.kind, QStringLiteral("note"));
    store.erase<TaskItem>(task);
    QVERIFY(!timer().linkedTask());
    timer().complete();
    QCOMPARE(store.list<Activity>().size(), before + 1);
    QCOMPARE(timer().sessions(), 3);
}

void FocusTimerTest::tellsWhenASessionIsOver()
{
    timer().setMinutes(15);
    timer().toggleRunning();
    pass(901s);
    timer().setTaskID(QUuid(m_workspace.addTask(QStringLiteral("Write"))));
    timer().toggleRunning();
    pass(901s);
    QCOMPARE(m_told, (QStringList{
                         QStringLiteral("Focus session done|15 minutes of focus. Take a short break."),
                         QStringLiteral("Focus session done|15 minutes on “Write”. Take a short break."),
                     }));
}

void FocusTimerTest::sessionsBelongToTheirDay()
{
    timer().complete();
    timer().open(this);
    QCOMPARE(timer().sessions(), 1);
    m_workspace.clock().advance(24h);
    // A screen that stayed open goes on counting into the day before.
    timer().complete();
    QCOMPARE(timer().sessions(), 2);
    timer().open(this);
    QCOMPARE(timer().sessions(), 0);
    QCOMPARE(m_preferences->value(QStringLiteral("orvel.focus.day")).toString(),
             QStringLiteral("2026-03-14"));
}

void FocusTimerTest::oddLengthsWork_data()
{
    QTest::addColumn<qint64>("length");
    QTest::addColumn<QString>("time");
    QTest::newRow("no preset") << qint64(50) << QStringLiteral("50:00");
    QTest::newRow("nothing") << qint64(0) << QStringLiteral("00:00");
    QTest::newRow("less than nothing") << qint64(-7) << QStringLiteral("00:00");
    QTest::newRow("beyond all bounds") << std::numeric_limits<qint64>::max() << QStringLiteral("100000:00");
}

void FocusTimerTest::oddLengthsWork()
{
    QFETCH(const qint64, length);
    m_workspace.store().changeSettings([&](AppSettings &settings) { settings.defaultFocusMinutes = length; });
    timer().open(this);
    QTEST(timer().timeText(), "time");
    QCOMPARE(timer().progress(), 0.0);
    timer().toggleRunning();
    pass(1s);
    QCOMPARE(timer().sessions(), length <= 0 ? 1 : 0);
}

void FocusTimerTest::leavingDropsTheSession()
{
    timer().toggleRunning();
    pass(90s);
    const QObject next;
    timer().open(&next);
    timer().toggleRunning();
    // The screen before fades out later than the next one has come.
    timer().close(this);
    QVERIFY(timer().isRunning());
    timer().close(&next);
    QVERIFY(!timer().isRunning());
    QVERIFY(!timer().isBegun());
    QCOMPARE(timer().sessions(), 0);
}

void FocusTimerTest::looksOnlyWhenWatched()
{
    const auto *const sleep = timer().findChild<QTimer *>();
    QVERIFY(!sleep->isActive());
    timer().toggleRunning();
    QVERIFY(sleep->intervalAsDuration() > 20min);
    timer().setWatched(this, true);
    QVERIFY(sleep->intervalAsDuration() < 2s);
    timer().setWatched(this, false);
    QVERIFY(sleep->intervalAsDuration() > 20min);
    timer().toggleRunning();
    QVERIFY(!sleep->isActive());
}

void FocusTimerTest::preferencesOutliveTheProgram()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a/preferences.ini"));
    const QString key = QStringLiteral("orvel.focus.sessions");
    Preferences(path).setValue(key, 3);
    Preferences preferences(path);
    QCOMPARE(preferences.value(key, 0).toInt(), 3);
    QSignalSpy changes(&preferences, &Preferences::changed);
    preferences.setValue(key, 3);
    QCOMPARE(changes.size(), 0);
    preferences.setValue(key, 4);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(Preferences(path).value(key).toInt(), 4);
}

QTEST_GUILESS_MAIN(FocusTimerTest)
#include "tst_focustimer.moc"
