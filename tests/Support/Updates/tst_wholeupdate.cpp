#include "Foundation/Sha256.h"
#include "Harness/HttpTestServer.h"
#include "Harness/TestPackage.h"
#include "Support/Updates/AppBundle.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// From a running old copy to a running new one, with nothing left out but the window.
class WholeUpdateTest : public QObject
{
    Q_OBJECT

private:
    static QList<TestPackage::Entry> bundle(const QByteArray &version)
    {
        QFile program(QStringLiteral(UPDATE_PROBE));
        if (!program.open(QIODevice::ReadOnly))
            qFatal("There is no probe");
        QList<TestPackage::Entry> entries = TestPackage::bundle(version);
        entries[4].contents = program.readAll();
        return entries;
    }
    static QByteArrayList lines(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QByteArrayList();
    }

private slots:
    void goesFromARunningCopyToTheNext()
    {
        QTemporaryDir folder;
        HttpTestServer site;
        const QByteArray package = TestPackage::zip(bundle("2.0"));
        Sha256 hash;
        hash.add(package);
        site.answer(u"/version.json"_s,
                    {.contentType = "application/json",
                     .body = R"({"version": "2.0", "download": "/Orvel-2.0.zip", "sha256": ")" +
                             hash.hex().toUpper() + R"("})"});
        site.answer(u"/Orvel-2.0.zip"_s, {.contentType = "application/zip", .body = package});
        // A name that a shell could trip over.
        const QString applications = folder.filePath(u"My apps; $(rm) 'n more"_s);
        TestPackage::layOut(bundle("1.0"), applications);
        const QString target = applications + u"/Orvel.app"_s;
        const QString marks = folder.filePath(u"marks"_s);
        QDir(folder.path()).mkdir(u"temporary"_s);

        QProcess old;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, folder.filePath(u"temporary"_s));
        environment.insert(u"PROBE_MARKS"_s, marks);
        environment.insert(u"PROBE_SITE"_s, site.url().toString());
        old.setProcessEnvironment(environment);
        old.setProcessChannelMode(QProcess::ForwardedChannels);
        old.start(AppBundle::programPath(target), QStringList());
        const qint64 oldProcess = old.processId();
        QTRY_COMPARE_WITH_TIMEOUT(old.state(), QProcess::NotRunning, 60'000);
        QCOMPARE(old.exitStatus(), QProcess::NormalExit);
        QCOMPARE(old.exitCode(), 0);

        QTRY_COMPARE_WITH_TIMEOUT(lines(marks).size(), 2, 60'000);
        QCOMPARE(lines(marks).first(), "1.0 " + QByteArray::number(oldProcess));
        QVERIFY(lines(marks).last().startsWith("2.0 "));
        QCOMPARE(AppBundle::version(target), u"2.0"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QDir(folder.filePath(u"temporary"_s)).isEmpty(), 60'000);
        QCOMPARE(QDir(applications).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList(u"Orvel.app"_s));

        // The new one asks, too, finds nothing newer and ends.
        const auto asked = [&site](const QByteArray &target) {
            return std::ranges::count(site.requests(), target, &HttpTestServer::Request::target);
        };
        QTRY_COMPARE_WITH_TIMEOUT(asked("/version.json"), 2, 60'000);
        const QString newProcess = u"/proc/"_s + QString::fromUtf8(lines(marks).last().sliced(4));
        QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(newProcess), 60'000);
        QCOMPARE(asked("/Orvel-2.0.zip"), 1);
    }
};

QTEST_GUILESS_MAIN(WholeUpdateTest)
#include "tst_wholeupdate.moc"
