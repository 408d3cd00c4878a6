#include "App/SavePoints.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SavePointsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    Timestamp m_now = Timestamp(1773394200s);
    SystemClock m_clock{{[this] { return m_now; }, &QTimeZone::utc}};

    QString path() const { return m_folder.filePath(u"workspace.json"_s); }
    bool savedName(const QByteArray &name) const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("\"userName\":\"" + name + '"');
    }

private slots:
    void init() { QFile::remove(path()); }

    void savesWhenItMayBeTheLastChance()
    {
        WorkspaceStore store({path(), &m_clock, 1h});
        const SavePoints savePoints(&store, &m_clock, qApp);
        const auto savesOn = [&](const QString &name, const auto &event) {
            store.changeSettings([&](AppSettings &settings) { settings.userName = name; });
            event();
            return QTest::qWaitFor([&] { return savedName(name.toUtf8()); }, 500);
        };
        QVERIFY(savesOn(u"inactive"_s, [] { emit qApp->applicationStateChanged(Qt::ApplicationInactive); }));
        QVERIFY(savesOn(u"hidden"_s, [] { emit qApp->applicationStateChanged(Qt::ApplicationHidden); }));
        QVERIFY(!savesOn(u"active"_s, [] { emit qApp->applicationStateChanged(Qt::ApplicationActive); }));
        // A session manager can only be had from a desktop; nobody looks at this one.
        QObject session;
        QVERIFY(savesOn(u"session"_s,
                        [&] { emit qApp->commitDataRequest(reinterpret_cast<QSessionManager &>(session)); }));
    }

    void comingBackLooksAtTheDay()
    {
        WorkspaceStore store({path(), &m_clock, 1h});
        const SavePoints savePoints(&store, &m_clock, qApp);
        const QSignalSpy dayChanged(&m_clock, &Clock::dayChanged);
        m_now += 24h;
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QCOMPARE(dayChanged.count(), 1);
    }

    void everySignalToEndSavesFirst_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }
    void everySignalToEndSavesFirst()
    {
        QFETCH(const int, signalNumber);
        QProcess program;
        program.start(QStringLiteral(SAVE_POINTS_PROBE), {path()});
        while (!program.canReadLine())
            QVERIFY(program.waitForReadyRead());
        QVERIFY(!QFile::exists(path()));
        QCOMPARE(::kill(pid_t(program.processId()), signalNumber), 0);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(savedName("Ada"));
    }

    void aLostDisplaySavesFirst()
    {
        QProcess server;
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s});
        if (!server.waitForStarted())
            QSKIP("there is no Xvfb");
        while (!server.canReadLine())
            QVERIFY(server.waitForReadyRead());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(server.readLine().trimmed()));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(SAVE_POINTS_PROBE), {path()});
        while (!program.canReadLine())
            QVERIFY2(program.waitForReadyRead(), program.readAllStandardError().constData());
        QVERIFY(!QFile::exists(path()));
        server.kill();
        QVERIFY(server.waitForFinished());
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QVERIFY(savedName("Ada"));
    }

    void aLostWaylandCompositorSavesFirst()
    {
        const QTemporaryDir runtime;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, runtime.path());
        environment.insert(u"WAYLAND_DISPLAY"_s, u"orvel-test"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
        QProcess compositor;
        compositor.setProcessEnvironment(environment);
        compositor.start(u"weston"_s,
                         {u"--backend=headless-backend.so"_s, u"--socket=orvel-test"_s, u"--idle-time=0"_s});
        if (!compositor.waitForStarted())
            QSKIP("there is no weston");
        QTRY_VERIFY(QFile::exists(runtime.filePath(u"orvel-test"_s)));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(SAVE_POINTS_PROBE), {path()});
        while (!program.canReadLine() && program.waitForReadyRead()) {
        }
        const QByteArray errors = program.readAllStandardError();
        if (errors.contains("Could not find the Qt platform plugin"))
            QSKIP("the toolkit has no plugin for Wayland");
        QVERIFY2(program.canReadLine(), errors.constData());
        QVERIFY(!QFile::exists(path()));
        compositor.kill();
        QVERIFY(compositor.waitForFinished());
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QVERIFY(savedName("Ada"));
    }

    void aDiskThatHangsHoldsNobodyUp()
    {
        const QTemporaryDir temporary(u"/dev/shm/orvel-XXXXXX"_s);
        if (!temporary.isValid())
            QSKIP("there is no second file system");
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, temporary.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(SAVE_POINTS_PROBE), {path(), u"hang"_s});
        while (!program.canReadLine())
            QVERIFY(program.waitForReadyRead());
        QElapsedTimer time;
        time.start();
        program.terminate();
        QVERIFY(program.waitForFinished(120'000));
        QVERIFY2(time.elapsed() < 60'000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), EXIT_FAILURE);
        QVERIFY(program.readAll().contains("It was written to " + QFile::encodeName(temporary.path())));
        QCOMPARE(QDir(temporary.path()).entryList(QDir::Files).size(), 1);
    }

    /// Neither a failed save nor the line that tells it ends the program.
    void failedWritesAreSurvived_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isLimited");
        QTest::newRow("nobody reads the output") << u"/dev/null"_s << false;
        QTest::newRow("a limit of the file's size") << m_folder.filePath(u"limited.json"_s) << true;
    }
    void failedWritesAreSurvived()
    {
        QFETCH(QString, path);
        QFETCH(bool, isLimited);
        const QTemporaryDir temporary;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, temporary.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        if (isLimited)
            program.setChildProcessModifier([] {
                const rlimit limit{100, 100};
                ::setrlimit(RLIMIT_FSIZE, &limit);
            });
        program.start(QStringLiteral(SAVE_POINTS_PROBE), {path});
        while (!program.canReadLine())
            QVERIFY(program.waitForReadyRead());
        program.closeReadChannel(QProcess::StandardOutput);
        program.terminate();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(QDir(temporary.path()).entryList(QDir::Files).size(), isLimited ? 0 : 1);
    }
};

QTEST_MAIN(SavePointsTest)
#include "tst_savepoints.moc"
