#include "App/SavePoints.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

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
            return savedName(name.toUtf8());
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
};

QTEST_MAIN(SavePointsTest)
#include "tst_savepoints.moc"
