#include "Harness/ManualClock.h"
#include "Store/SaveScheduler.h"
#include "Store/SnapshotCodec.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <future>
#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SaveSchedulerTest : public QObject
{
    Q_OBJECT

private:
    /// A scheduler with a workspace that is one number and a disk that fails or is slow on request.
    struct Desk {
        explicit Desk(SaveScheduler::Delays delays) : scheduler(&file, [this] { return workspace; }, delays)
        {
        }

        void change() { workspace.settings.userName = QString::number(++number); }
        /// The number in the file; 0 without one.
        int saved() const
        {
            QFile onDisk(path);
            if (!onDisk.open(QIODevice::ReadOnly))
                return 0;
            const auto snapshot = SnapshotCodec::decode(onDisk.readAll(), {}, &QUuid::createUuid);
            return snapshot ? snapshot->settings.userName.toInt() : -1;
        }
        std::expected<void, QString> attempt()
        {
            ++attempts;
            while (isSlow)
                QThread::msleep(1);
            if (isFailing)
                return std::unexpected(u"the disk is away"_s);
            return {};
        }

        QTemporaryDir folder;
        QString path = folder.filePath(u"workspace.json"_s);
        ManualClock clock;
        Snapshot workspace;
        int number = 0;
        std::atomic<int> attempts = 0;
        std::atomic<bool> isFailing = false, isSlow = false;
        WorkspaceFile file{{.path = path,
                            .rescueFolder = folder.filePath(u"rescued"_s),
                            .now = [this] { return clock.now(); },
                            .checkLock = [this] { return attempt(); }}};
        SaveScheduler scheduler;
    };
    static constexpr SaveScheduler::Delays never{1h, 1h, 1h, 1h};

private slots:
    void changesCloseTogetherMakeOneSave()
    {
        Desk desk({.quiet = 60ms, .longest = 1h});
        for (int i = 0; i < 10; ++i) {
            desk.change();
            desk.scheduler.schedule();
            QTest::qWait(5);
        }
        QCOMPARE(desk.attempts, 0);
        QTRY_COMPARE(desk.saved(), 10);
        QTest::qWait(150);
        QCOMPARE(desk.attempts, 1);
    }

    void changesThatKeepComingAreSavedMeanwhile()
    {
        Desk desk({.quiet = 100ms, .longest = 300ms});
        QElapsedTimer time;
        time.start();
        while (desk.saved() == 0 && time.elapsed() < 5000) {
            desk.change();
            desk.scheduler.schedule();
            QTest::qWait(10);
        }
        QVERIFY2(time.elapsed() >= 300 && time.elapsed() < 2500, qPrintable(QString::number(time.elapsed())));
        QVERIFY(desk.saved() <= desk.number);
        desk.scheduler.saveNow();
        QCOMPARE(desk.saved(), desk.number);
    }

    void withoutAChangeNothingIsWritten()
    {
        Desk desk(never);
        QVERIFY(desk.scheduler.saveNow());
        desk.scheduler.saveSoon();
        QVERIFY(desk.scheduler.saveAtExit());
        QCOMPARE(desk.attempts, 0);
        desk.change();
        desk.scheduler.noteChange();
        QVERIFY(desk.scheduler.saveNow());
        QVERIFY(desk.scheduler.saveNow());
        QVERIFY(desk.scheduler.saveAtExit());
        QCOMPARE(desk.attempts, 1);
        QCOMPARE(desk.saved(), 1);
    }

    void nobodyWaitsForASlowDiskButWhoAsksTo()
    {
        Desk desk(never);
        desk.isSlow = true;
        desk.change();
        desk.scheduler.schedule();
        QElapsedTimer time;
        time.start();
        desk.scheduler.saveSoon();
        // Changed while the save is under way: another one follows by itself.
        desk.change();
        desk.scheduler.noteChange();
        desk.scheduler.saveSoon();
        QVERIFY(time.elapsed() < 200);
        desk.isSlow = false;
        QTRY_COMPARE(desk.saved(), 2);
        QCOMPARE(desk.attempts, 2);

        desk.isSlow = true;
        desk.change();
        desk.scheduler.noteChange();
        desk.scheduler.saveSoon();
        desk.change();
        desk.scheduler.noteChange();
        const auto release = std::async(std::launch::async, [&desk] {
            QThread::msleep(50);
            desk.isSlow = false;
        });
        QVERIFY(desk.scheduler.saveNow());
        QCOMPARE(desk.saved(), 4);
    }

    void aFailureIsToldAndTriedAgainAtGrowingDistances()
    {
        Desk desk({1h, 1h, 20ms, 60ms});
        const QSignalSpy told(&desk.scheduler, &SaveScheduler::problemChanged);
        desk.isFailing = true;
        desk.change();
        desk.scheduler.noteChange();
        QVERIFY(!desk.scheduler.saveNow());
        QCOMPARE(desk.scheduler.problem(),
                 u"Not saved: the disk is away. Your changes are safe only while Orvel is open."_s);
        QElapsedTimer time;
        time.start();
        QTRY_COMPARE(desk.attempts, 5);
        // 20, 40, 60 and 60 ms.
        QVERIFY2(time.elapsed() >= 170, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(told.count(), 1);
        desk.isFailing = false;
        QTRY_VERIFY(desk.scheduler.problem().isEmpty());
        QCOMPARE(told.count(), 2);
        QCOMPARE(desk.saved(), 1);
        const int attempts = desk.attempts;
        QTest::qWait(150);
        QCOMPARE(desk.attempts, attempts);
    }

    void atTheEndTheWorkspaceGoesElsewhere()
    {
        const QTemporaryDir temporary;
        qputenv("TMPDIR", QFile::encodeName(temporary.path()));
        Desk desk(never);
        desk.isFailing = true;
        desk.change();
        desk.scheduler.noteChange();
        QVERIFY(desk.scheduler.saveAtExit());
        qunsetenv("TMPDIR");
        QCOMPARE(desk.attempts, 2);
        const QStringList names = QDir(temporary.path()).entryList(QDir::Files);
        QCOMPARE(names, QStringList{u"Orvel-workspace-20260313T093000.000Z.json"_s});
        QFile file(temporary.filePath(names.first()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), SnapshotCodec::encode(desk.workspace));
    }

    void theEndDoesNotWaitForADiskThatHangs()
    {
        const QTemporaryDir temporary;
        qputenv("TMPDIR", QFile::encodeName(temporary.path()));
        Desk desk({1h, 1h, 1h, 1h, 200ms});
        desk.isSlow = true;
        desk.change();
        desk.scheduler.noteChange();
        QElapsedTimer time;
        time.start();
        QVERIFY(!desk.scheduler.saveAtExit());
        qunsetenv("TMPDIR");
        QVERIFY2(time.elapsed() < 10'000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(QDir(temporary.path()).entryList(QDir::Files).size(), 1);
        desk.isSlow = false;
    }

    void noticesStayUntilDismissed()
    {
        Desk desk(never);
        QFile other(desk.path);
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.write("theirs");
        other.close();
        desk.change();
        desk.scheduler.noteChange();
        QVERIFY(desk.scheduler.saveNow());
        QVERIFY(desk.scheduler.notice().startsWith(u"Another program changed the workspace file."_s));
        desk.change();
        desk.scheduler.noteChange();
        QVERIFY(desk.scheduler.saveNow());
        QVERIFY(!desk.scheduler.notice().isEmpty());
        desk.scheduler.dismissNotice();
        QVERIFY(desk.scheduler.notice().isEmpty());
    }

    /// Whatever happens in whatever order, what is on disk never goes back, and `saveNow` brings it up to
    /// date.
    void aRandomWalkEndsUpToDate()
    {
        Desk desk({3ms, 10ms, 2ms, 5ms});
        std::mt19937 random(11);
        int last = 0;
        for (int step = 0; step < 3000; ++step) {
            switch (random() % 8) {
            case 0:
                desk.isFailing = random() % 3 == 0;
                break;
            case 1:
                desk.scheduler.saveSoon();
                break;
            case 2:
                if (desk.scheduler.saveNow())
                    QCOMPARE(desk.saved(), desk.number);
                else
                    QVERIFY(desk.isFailing);
                break;
            case 3:
                QCoreApplication::processEvents();
                break;
            case 4:
                QTest::qWait(int(random() % 3));
                break;
            default:
                desk.change();
                desk.scheduler.schedule();
            }
            if (step % 16 == 0) {
                const int saved = desk.saved();
                QVERIFY2(saved >= last, qPrintable(u"%1 after %2"_s.arg(saved).arg(last)));
                last = saved;
            }
        }
        desk.isFailing = false;
        QTRY_COMPARE(desk.saved(), desk.number);
        QTRY_VERIFY(desk.scheduler.problem().isEmpty());
    }
};

QTEST_GUILESS_MAIN(SaveSchedulerTest)
#include "tst_savescheduler.moc"
