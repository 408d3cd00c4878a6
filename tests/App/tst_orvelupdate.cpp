#include "Foundation/Sha256.h"
#include "Harness/HttpTestServer.h"
#include "Harness/TestPackage.h"
#include "Support/Updates/AppBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// The program itself, in a folder of the user's own, beside an update site.
class OrvelUpdateTest : public QObject
{
    Q_OBJECT

private:
    QString m_program;

    static QList<TestPackage::Entry> bundle(const QByteArray &version)
    {
        QFile program(QStringLiteral(ORVEL_PROGRAM));
        if (!program.open(QIODevice::ReadOnly))
            qFatal("There is no program");
        QList<TestPackage::Entry> entries = TestPackage::bundle(version);
        entries[4].contents = program.readAll();
        return entries;
    }
    /// The process that runs the program at this path, or 0.
    static pid_t processAt(const QString &program)
    {
        for (const QString &process : QDir(u"/proc"_s).entryList({u"[1-9]*"_s}, QDir::Dirs))
            if (QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(process)) == program)
                return process.toInt();
        return 0;
    }

private slots:
    void cleanup()
    {
        if (const pid_t process = processAt(m_program))
            ::kill(process, SIGKILL);
    }

    void updatesItself()
    {
        QTemporaryDir folder;
        HttpTestServer site;
        const QByteArray package = TestPackage::zip(bundle("9.9"), true);
        Sha256 hash;
        hash.add(package);
        site.answer(u"/version.json"_s, {.contentType = "application/json",
                                         .body = R"({"version": "9.9", "download": "/9.9.zip", "sha256": ")" +
                                                 hash.hex() + R"("})"});
        site.answer(u"/9.9.zip"_s, {.contentType = "application/zip", .body = package});
        TestPackage::layOut(bundle("1.0"), folder.filePath(u"apps"_s));
        const QString target = QFileInfo(folder.filePath(u"apps/Orvel.app"_s)).canonicalFilePath();
        m_program = AppBundle::programPath(target);
        QDir(folder.path()).mkdir(u"temporary"_s);

        QProcess old;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, folder.filePath(u"data"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.filePath(u"config"_s));
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
        environment.insert(u"TMPDIR"_s, folder.filePath(u"temporary"_s));
        environment.insert(u"ORVEL_UPDATE_BASE"_s, site.url().toString());
        environment.insert(u"ORVEL_AUTOINSTALL"_s, u"1"_s);
        old.setProcessEnvironment(environment);
        old.setProcessChannelMode(QProcess::ForwardedChannels);
        old.start(m_program, QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(old.state(), QProcess::NotRunning, 120'000);
        QCOMPARE(old.exitStatus(), QProcess::NormalExit);
        QCOMPARE(old.exitCode(), 0);

        QTRY_VERIFY_WITH_TIMEOUT(processAt(m_program) != 0, 60'000);
        QCOMPARE(AppBundle::version(target), u"9.9"_s);
        // It runs: it asks, under its new name, and finds nothing newer.
        const auto isAsked = [&site] {
            return site.requests().last().target == "/version.json" &&
                   site.requests().last().headers.value("user-agent") == "Orvel/9.9";
        };
        QTRY_VERIFY_WITH_TIMEOUT(isAsked(), 60'000);
        QCOMPARE(site.requests().size(), 3);
        QTRY_VERIFY_WITH_TIMEOUT(QDir(folder.filePath(u"temporary"_s)).isEmpty(), 60'000);

        QCOMPARE(::kill(processAt(m_program), SIGTERM), 0);
        QTRY_COMPARE_WITH_TIMEOUT(processAt(m_program), 0, 60'000);
    }
};

QTEST_GUILESS_MAIN(OrvelUpdateTest)
#include "tst_orvelupdate.moc"
