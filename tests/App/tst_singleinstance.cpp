#include "App/SingleInstance.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString lockPath() const { return m_folder.filePath(u"workspace.lock"_s); }
    QString socketPath() const { return m_folder.filePath(u"orvel.socket"_s); }

    std::unique_ptr<QProcess> launch(int patience = 30'000, const QString &token = {}) const
    {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral(SINGLE_INSTANCE_PROBE),
                       {lockPath(), socketPath(), QString::number(patience), token});
        return process;
    }
    /// The next line that the process prints, without its end.
    static QByteArray line(QProcess &process)
    {
        while (!process.canReadLine() && process.waitForReadyRead()) {
        }
        return process.readLine().trimmed();
    }
    static int exitCode(QProcess &process)
    {
        process.closeWriteChannel();
        process.waitForFinished();
        const bool ended =
            process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
        return ended ? process.exitCode() : -1;
    }

private slots:
    void aSecondStartAsksTheFirstToShowItsWindow()
    {
        const auto first = launch();
        QCOMPARE(line(*first), "writer");
        const auto second = launch(30'000, u"token-7"_s);
        QCOMPARE(line(*second), "visitor");
        QCOMPARE(exitCode(*second), 0);
        QCOMPARE(line(*first), "raise token-7");
        QCOMPARE(exitCode(*first), 0);

        const auto afterwards = launch();
        QCOMPARE(line(*afterwards), "writer");
        QCOMPARE(exitCode(*afterwards), 0);
    }

    void exactlyOneOfTwoStartsAtTheSameTimeWins()
    {
        for (int round = 0; round < 20; ++round) {
            const auto one = launch();
            const auto other = launch();
            QByteArrayList roles{line(*one), line(*other)};
            std::ranges::sort(roles);
            QCOMPARE(roles, (QByteArrayList{"visitor", "writer"}));
            QCOMPARE(exitCode(*one), 0);
            QCOMPARE(exitCode(*other), 0);
        }
    }

    void aCrashReleasesTheLockAndItsSocketIsClearedAway()
    {
        const auto crashed = launch();
        QCOMPARE(line(*crashed), "writer");
        crashed->kill();
        QVERIFY(crashed->waitForFinished());
        QVERIFY(QFile::exists(socketPath()));

        const auto next = launch();
        QCOMPARE(line(*next), "writer");
        const auto visitor = launch();
        QCOMPARE(line(*visitor), "visitor");
        QCOMPARE(exitCode(*visitor), 0);
        QCOMPARE(exitCode(*next), 0);
    }

    void aFirstStartThatDoesNotAnswerIsReported()
    {
        const auto frozen = launch();
        QCOMPARE(line(*frozen), "writer");
        QCOMPARE(::kill(pid_t(frozen->processId()), SIGSTOP), 0);
        const auto second = launch(200);
        QCOMPARE(line(*second),
                 "Orvel is already running but does not answer; end it and start Orvel again.");
        QCOMPARE(exitCode(*second), 1);
        ::kill(pid_t(frozen->processId()), SIGCONT);
        QCOMPARE(exitCode(*frozen), 0);
    }

    void waitsForAFirstStartThatIsAboutToEnd()
    {
        const auto ending = launch();
        QCOMPARE(line(*ending), "writer");
        QCOMPARE(::kill(pid_t(ending->processId()), SIGSTOP), 0);
        const auto next = launch();
        ending->kill();
        QCOMPARE(line(*next), "writer");
        QCOMPARE(exitCode(*next), 0);
    }

    void nonsenseOnTheSocketIsIgnored()
    {
        const auto first = launch();
        QCOMPARE(line(*first), "writer");
        QLocalSocket endless;
        endless.connectToServer(socketPath());
        QVERIFY(endless.waitForConnected());
        endless.write(QByteArray(100'000, 'x'));
        if (endless.state() == QLocalSocket::ConnectedState)
            QVERIFY(endless.waitForDisconnected());

        QLocalSocket other;
        other.connectToServer(socketPath());
        QVERIFY(other.waitForConnected());
        other.write("hide\n");
        QVERIFY(other.waitForDisconnected());
        QCOMPARE(other.readAll(), "");

        const auto visitor = launch();
        QCOMPARE(line(*visitor), "visitor");
        QCOMPARE(exitCode(*visitor), 0);
        QCOMPARE(line(*first), "raise");
        QCOMPARE(exitCode(*first), 0);
    }

    void aFolderThatTakesNoLockIsNoObstacle()
    {
        SingleInstance instance({.lockPath = m_folder.filePath(u"missing/workspace.lock"_s),
                                 .socketPath = m_folder.filePath(u"other.socket"_s)});
        QCOMPARE(instance.start(), SingleInstance::Role::writer);
    }

    void aLockIsLostWithItsFile_data()
    {
        QTest::addColumn<QString>("event");
        for (const char *event : {"file removed", "file replaced", "folder replaced"})
            QTest::newRow(event) << QString::fromLatin1(event);
    }
    void aLockIsLostWithItsFile()
    {
        QFETCH(QString, event);
        const QTemporaryDir folder;
        const QString data = folder.filePath(u"data"_s), path = data + u"/workspace.lock"_s;
        QVERIFY(QDir().mkdir(data));
        SingleInstance first({.lockPath = path, .socketPath = folder.filePath(u"socket"_s)});
        QCOMPARE(first.start(), SingleInstance::Role::writer);
        QVERIFY(first.checkLock());
        if (event == u"file removed"_s) {
            QVERIFY(QFile::remove(path));
        } else if (event == u"file replaced"_s) {
            QFile other(path + u".other"_s);
            QVERIFY(other.open(QIODevice::WriteOnly));
            QCOMPARE(std::rename(qPrintable(other.fileName()), qPrintable(path)), 0);
        } else {
            QVERIFY(QFile::rename(data, folder.filePath(u"away"_s)));
            QVERIFY(QDir().mkdir(data));
        }
        {
            FileLock second(path);
            QCOMPARE(second.acquire(), FileLock::State::held);
            QCOMPARE(first.checkLock().error(), u"another Orvel is writing this workspace"_s);
        }
        QVERIFY2(first.checkLock(), "it is free again");
        QCOMPARE(FileLock(path).acquire(), FileLock::State::taken);
    }

    /// As a start as root leaves it.
    void aLockThatCanNotBeOpenedIsReplaced()
    {
        if (::geteuid() != 0)
            QSKIP("only root can make it");
        static constexpr uid_t nobody = 65534;
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"workspace.lock"_s);
        FileLock roots(path);
        QCOMPARE(roots.acquire(), FileLock::State::held);
        QCOMPARE(::chown(qPrintable(folder.path()), nobody, gid_t(-1)), 0);
        QCOMPARE(::seteuid(nobody), 0);
        FileLock users(path);
        const auto state = users.acquire();
        QCOMPARE(::seteuid(0), 0);
        QCOMPARE(state, FileLock::State::held);
        QCOMPARE(roots.check(), FileLock::State::taken);
    }

    void eachFolderHasItsOwnPlaces()
    {
        QDir(m_folder.path()).mkpath(u"a"_s);
        QDir(m_folder.path()).mkpath(u"b"_s);
        QFile::link(m_folder.filePath(u"a"_s), m_folder.filePath(u"link"_s));
        const auto places = [&](const QString &name) {
            return SingleInstance::Options::forWorkspace(m_folder.filePath(name + u"/workspace.json"_s));
        };
        QCOMPARE(places(u"a"_s).lockPath, m_folder.filePath(u"a/workspace.lock"_s));
        QVERIFY(places(u"a"_s).socketPath != places(u"b"_s).socketPath);
        QCOMPARE(places(u"link"_s).socketPath, places(u"a"_s).socketPath);
        // Two homes whose files are links to one.
        QVERIFY(QFile::link(u"../a/workspace.json"_s, m_folder.filePath(u"b/workspace.json"_s)));
        QCOMPARE(QFileInfo(places(u"b"_s).lockPath).dir().canonicalPath(), m_folder.filePath(u"a"_s));
        QCOMPARE(places(u"b"_s).socketPath, places(u"a"_s).socketPath);
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "tst_singleinstance.moc"
