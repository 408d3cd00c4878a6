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
    std::unique_ptr<QProcess> launch(const QString &program = QStringLiteral(ORVEL_PROGRAM),
                                     const QStringList &arguments = {}) const
    {
        auto process = std::make_unique<QProcess>();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, m_folder->filePath(u"data"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder->filePath(u"config"_s));
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_folder->path());
        environment.insert(u"QT_LOGGING_RULES"_s, u"orvel.start.info=true"_s);
        process->setProcessEnvironment(environment);
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->start(program, arguments);
        return process;
    }
    static bool says(QProcess &process, const QByteArray &text)
    {
        QByteArray output;
        while (!output.contains(text) && process.waitForReadyRead())
            output += process.readAll();
        return output.contains(text);
    }
    static bool showsItsWindow(QProcess &process) { return says(process, "first frame"); }
    bool writeWorkspace(const QByteArray &bytes) const
    {
        QFile file(filePath());
        return QDir().mkpath(QFileInfo(filePath()).path()) && file.open(QIODevice::WriteOnly) &&
               file.write(bytes) == bytes.size();
    }
    QByteArray workspace() const
    {
        QFile file(filePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

    void aHugeTextThatOpensHoldsNobodyUp_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<bool>("byClosing");
        for (const char *const text : {"paragraph", "blocks", "lines"})
            for (const int milliseconds : {0, 400})
                for (const bool byClosing : {false, true})
                    QTest::addRow("%s, %s after %d ms", text, byClosing ? "closed" : "SIGTERM", milliseconds)
                        << QString::fromLatin1(text) << milliseconds << byClosing;
    }
    /// And nothing of it is lost.
    void aHugeTextThatOpensHoldsNobodyUp()
    {
        QFETCH(const QString, text);
        QFETCH(const int, milliseconds);
        QFETCH(const bool, byClosing);
        QVERIFY(writeWorkspace("{\"settings\":{\"hasCompletedOnboarding\":true}}"));
        const auto program =
            launch(QStringLiteral(HUGE_TEXTS_PROBE), {text, QString::number(byClosing ? milliseconds : -1)});
        QVERIFY(says(*program, "opening"));
        QElapsedTimer time;
        time.start();
        if (!byClosing) {
            QTest::qSleep(milliseconds);
            program->terminate();
        }
        QVERIFY(endsInOrder(*program));
        QVERIFY2(time.elapsed() < 10'000, qPrintable(QString::number(time.elapsed())));
        const QByteArray saved = workspace();
        QVERIFY(saved.contains("\"userName\":\"Ada\""));
        const bool isWhole = text == u"paragraph"_s ? saved.contains("word word ") && saved.size() > 5'000'000
                             : text == u"blocks"_s  ? saved.count("\"text\":\"block\"") == 200'000
                                                    : saved.count("print(1)\\n") == 400'000;
        QVERIFY(isWhole);
    }

    void aHugeWorkspaceThatLoadsHoldsNobodyUp()
    {
        QByteArray bytes = "{\"settings\":{\"hasCompletedOnboarding\":true},\"pages\":[{\"id\":"
                           "\"6F9619FF-8B86-D011-B42D-00CF4FC964FF\",\"title\":\"Long\",\"content\":[";
        for (int i = 0; i < 200'000; ++i)
            bytes += QByteArray(i == 0 ? "" : ",") + "{\"type\":\"paragraph\",\"text\":\"block\"}";
        bytes += ",{\"type\":\"paragraph\",\"text\":\"" + QByteArray("word ").repeated(1'000'000) + "\"}]}]}";
        QVERIFY(writeWorkspace(bytes));
        for (const int milliseconds : {300, 1'000, 3'000}) {
            const auto program = launch();
            QVERIFY(program->waitForStarted());
            QTest::qSleep(milliseconds);
            QElapsedTimer time;
            time.start();
            program->terminate();
            QVERIFY(program->waitForFinished());
            QVERIFY2(time.elapsed() < 10'000, qPrintable(QString::number(time.elapsed())));
            QVERIFY(workspace() == bytes);
        }
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
