#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// The program itself, with folders of its own and no screen.
class OrvelProgramTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString filePath() const { return m_folder->filePath(u"data/Orvel/workspace.json"_s); }
    std::unique_ptr<QProcess> launch() const
    {
        auto process = std::make_unique<QProcess>();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, m_folder->filePath(u"data"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder->filePath(u"config"_s));
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_folder->path());
        environment.insert(u"QT_LOGGING_RULES"_s, u"orvel.start.info=true"_s);
        process->setProcessEnvironment(environment);
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->start(QStringLiteral(ORVEL_PROGRAM), QStringList());
        return process;
    }
    static bool showsItsWindow(QProcess &process)
    {
        QByteArray output;
        while (!output.contains("first frame") && process.waitForReadyRead())
            output += process.readAll();
        return output.contains("first frame");
    }
    static bool endsInOrder(QProcess &process)
    {
        process.waitForFinished();
        return process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void everySignalEndsItInOrder_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }
    void everySignalEndsItInOrder()
    {
        QFETCH(const int, signalNumber);
        const auto program = launch();
        QVERIFY(showsItsWindow(*program));
        QCOMPARE(::kill(pid_t(program->processId()), signalNumber), 0);
        QVERIFY(endsInOrder(*program));
        QVERIFY2(!QFile::exists(filePath()), "nothing was changed");
        QVERIFY(QFile::exists(m_folder->filePath(u"config/Orvel/window.ini"_s)));
    }

    void whatIsNoFileHoldsNobodyUp()
    {
        QVERIFY(QDir().mkpath(QFileInfo(filePath()).path()));
        QCOMPARE(::mkfifo(qPrintable(filePath()), 0600), 0);
        const auto program = launch();
        QVERIFY(showsItsWindow(*program));
        program->terminate();
        QVERIFY(endsInOrder(*program));
    }

    void aSecondStartEndsAtOnce()
    {
        const auto first = launch();
        QVERIFY(showsItsWindow(*first));
        const auto second = launch();
        QVERIFY(endsInOrder(*second));
        QCOMPARE(first->state(), QProcess::Running);
        first->terminate();
        QVERIFY(endsInOrder(*first));
    }

    void oneOfTwoStartsAtTheSameTimeShowsItsWindow()
    {
        for (int round = 0; round < 3; ++round) {
            auto one = launch();
            auto other = launch();
            if (!showsItsWindow(*one)) {
                std::swap(one, other);
                QVERIFY(showsItsWindow(*one));
            }
            QVERIFY(endsInOrder(*other));
            one->terminate();
            QVERIFY(endsInOrder(*one));
        }
    }

    void aFirstStartThatDoesNotAnswerIsLeftAlone()
    {
        const auto frozen = launch();
        QVERIFY(showsItsWindow(*frozen));
        ::kill(pid_t(frozen->processId()), SIGSTOP);
        const auto second = launch();
        QVERIFY(second->waitForFinished());
        QCOMPARE(second->exitCode(), 1);
        QVERIFY(second->readAll().contains("Orvel is already running but does not answer"));
        QVERIFY(!QFile::exists(filePath()));
        ::kill(pid_t(frozen->processId()), SIGCONT);
        frozen->terminate();
        QVERIFY(endsInOrder(*frozen));
    }
};

QTEST_GUILESS_MAIN(OrvelProgramTest)
#include "tst_orvelprogram.moc"
