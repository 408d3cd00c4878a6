#include "Foundation/Sha256.h"
#include "Harness/HttpTestServer.h"
#include "Harness/TestPackage.h"
#include "Support/Updates/PackageInstaller.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = HttpTestServer::Answer;
using Pace = HttpTestServer::Pace;

namespace
{
/// As long as it lives, the test has no rights of its own.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_isRoot(::geteuid() == 0)
    {
        if (m_isRoot && ::setresuid(65534, 65534, 0) != 0)
            qFatal("The test can't become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (m_isRoot && ::setresuid(0, 0, 0) != 0)
            qFatal("The test can't become itself again");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    bool m_isRoot;
};

QString hashOf(const QByteArray &bytes)
{
    Sha256 hash;
    hash.add(bytes);
    return QString::fromLatin1(hash.hex());
}

const QString failed = u"The update download failed."_s;
const QString tookTooLong = u"The server took too long to respond."_s;
const QString stoppedEarly = u"The update download stopped early."_s;
const QString otherChecksum = u"The update download didn't match its published checksum."_s;
const QString notUnpacked = u"The update couldn't be unpacked."_s;
const QString noApp = u"The update download was missing the app."_s;
} // namespace

class PackageInstallerTest : public QObject
{
    Q_OBJECT

private:
    static constexpr HttpLimits patient{10min, 10min, 4 << 20};
    static constexpr HttpLimits hasty{200ms, 10min, 4 << 20};
    static constexpr HttpLimits nervous{10min, 200ms, 4 << 20};
    const QList<std::chrono::milliseconds> fourWaits{2s, 4s, 6s, 8s};

    std::unique_ptr<QTemporaryDir> m_folder;
    HttpTestServer m_server;
    QObject m_owner;
    QList<std::chrono::milliseconds> m_waits;
    QStringList m_ends;
    QList<double> m_progress;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString marks() const { return path(u"marks"_s); }
    QStringList staged() const
    {
        return QDir(path(u"temporary"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QList<TestPackage::Entry> bundle(const QByteArray &version) const
    {
        return TestPackage::bundle(version, UPDATE_PROBE, marks().toUtf8());
    }

    PackageInstaller::Surroundings surroundings(const HttpLimits &limits = patient)
    {
        return {.wait =
                    [this](std::chrono::milliseconds time, QObject *owner, std::function<void()> then) {
                        m_waits.append(time);
                        QTimer::singleShot(0, owner, std::move(then));
                    },
                .bundle = path(u"apps/Orvel.app"_s),
                .temporaryFolder = path(u"temporary"_s),
                .userAgent = "Orvel/1.0",
                .processId = ::getpid(),
                .quit = [this] { m_ends.append(u"quit"_s); },
                .exitNow = [this] { m_ends.append(u"exit"_s); },
                .limits = limits};
    }
    AvailableUpdate update(const QString &place, const QString &sha256 = {}) const
    {
        AvailableUpdate update;
        update.version = u"2.0"_s;
        update.downloadURL = m_server.url(place);
        update.sha256 = sha256;
        return update;
    }

    /// Gives what the user is told, or nothing after a success.
    QString install(const AvailableUpdate &update, const HttpLimits &limits = patient)
    {
        std::optional<std::expected<void, QString>> result;
        bool isCleanThen = false;
        QEventLoop loop;
        PackageInstaller(surroundings(limits))
            .install(
                update, &m_owner, [this](double share) { m_progress.append(share); },
                [&](const std::expected<void, QString> &given) {
                    result = given;
                    isCleanThen = staged().isEmpty();
                    loop.quit();
                });
        if (result)
            return u"THE ANSWER CAME TOO EARLY"_s;
        QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
        loop.exec();
        if (!result)
            return u"THE TEST GAVE UP"_s;
        const bool isOver = QTest::qWaitFor(
            [&] { return m_owner.children().isEmpty() && m_server.openConnections() == 0; }, 60'000);
        if (!isOver || (!*result && !isCleanThen))
            return u"SOMETHING IS LEFT BEHIND"_s;
        return *result ? QString() : result->error();
    }

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(u"orvel.updater=false"_s); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        TestPackage::layOut(bundle("1.0"), path(u"apps"_s));
        m_server.forgetRequests();
        m_waits.clear();
        m_ends.clear();
        m_progress.clear();
    }

    void installsAndQuits()
    {
        const QByteArray package = TestPackage::zip(bundle("2.0"));
        m_server.answer(u"/good"_s, {.contentType = "application/zip", .body = package});
        QCOMPARE(install(update(u"/good"_s, u"  "_s + hashOf(package).toUpper())), QString());
        QCOMPARE(m_server.requests().first().headers.value("user-agent"), "Orvel/1.0"_ba);
        QCOMPARE(m_progress.last(), 1.0);
        QVERIFY(std::ranges::is_sorted(m_progress));

        QTRY_COMPARE(m_ends, QStringList({u"quit"_s, u"exit"_s}));
        QCOMPARE(m_waits, QList<std::chrono::milliseconds>({400ms, 4s}));
        QTRY_COMPARE_WITH_TIMEOUT(QFileInfo(marks()).size(), 4, 30'000);
        QTRY_VERIFY(staged().isEmpty());
        QTemporaryDir expected;
        TestPackage::layOut(bundle("2.0"), expected.path());
        QCOMPARE(TestPackage::tree(path(u"apps"_s)), TestPackage::tree(expected.path()));
    }

    void triesAgain()
    {
        m_server.answer(u"/busy"_s, {.status = 503});
        PackageInstaller::Surroundings told = surroundings();
        told.wait = [this, wait = told.wait](std::chrono::milliseconds time, QObject *owner,
                                             std::function<void()> then) {
            if (m_waits.size() == 1)
                m_server.answer(u"/busy"_s, {.body = TestPackage::zip(bundle("2.0"))});
            wait(time, owner, std::move(then));
        };
        std::optional<std::expected<void, QString>> result;
        PackageInstaller(told).install(
            update(u"/busy"_s), &m_owner, [](double) {},
            [&](const std::expected<void, QString> &given) { result = given; });
        QTRY_VERIFY_WITH_TIMEOUT(result, 30'000);
        QVERIFY(*result);
        QCOMPARE(m_waits.first(2), fourWaits.first(2));
        QTRY_VERIFY_WITH_TIMEOUT(staged().isEmpty(), 30'000);
    }

    void survivesBadServers_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<HttpLimits>("limits");
        QTest::addColumn<QString>("sha256");
        QTest::addColumn<QString>("message");
        const QByteArray page = "<html><body>Please sign in.</body></html>";
        const QByteArray package = TestPackage::zip(TestPackage::bundle("2.0"));
        const QByteArray half = package.first(package.size() / 2);
        const QString hash = hashOf(package);
        const qint64 size = package.size();
        QTest::newRow("silent") << Answer{.pace = Pace::silent} << nervous << hash << tookTooLong;
        QTest::newRow("stalls") << Answer{.body = half, .contentLength = size, .pace = Pace::stalling}
                                << nervous << hash << stoppedEarly;
        QTest::newRow("drips") << Answer{.pace = Pace::dripping} << hasty << hash << tookTooLong;
        QTest::newRow("truncates") << Answer{.body = half, .contentLength = size} << patient << hash
                                   << stoppedEarly;
        QTest::newRow("tells a length and sends nothing")
            << Answer{.contentLength = size} << patient << hash << stoppedEarly;
        QTest::newRow("tells too small a length")
            << Answer{.body = package, .contentLength = size - 1} << patient << hash << otherChecksum;
        QTest::newRow("tells too small a length, no checksum")
            << Answer{.body = package, .contentLength = size - 30} << patient << QString() << notUnpacked;
        QTest::newRow("tells a length beyond all measure")
            << Answer{.body = half, .contentLength = 1LL << 40, .pace = Pace::stalling} << patient << hash
            << u"The response is longer than 4194304 bytes."_s;
        QTest::newRow("endless") << Answer{.pace = Pace::endless} << patient << hash
                                 << u"The response is longer than 4194304 bytes."_s;
        QTest::newRow("hangs up") << Answer{.pace = Pace::hangingUp} << patient << hash
                                  << u"The response ended early."_s;
        QTest::newRow("404") << Answer{.status = 404, .body = page} << patient << hash << failed;
        QTest::newRow("500") << Answer{.status = 500, .body = page} << patient << hash << failed;
        QTest::newRow("page under 200")
            << Answer{.contentType = "text/html", .body = page} << patient << hash << otherChecksum;
        QTest::newRow("page under 200, no checksum")
            << Answer{.contentType = "text/html", .body = page} << patient << QString() << notUnpacked;
        QTest::newRow("nothing under 200") << Answer{} << patient << QString() << notUnpacked;
        QTest::newRow("packed badly") << Answer{.body = package, .contentEncoding = "gzip"} << patient << hash
                                      << u"The response is packed badly."_s;
        QTest::newRow("redirects for ever")
            << Answer{.status = 302, .location = "/bad"} << patient << hash << failed;
        QTest::newRow("redirects to a file")
            << Answer{.status = 302, .location = "file:///etc/hostname"} << patient << hash << failed;
    }
    void survivesBadServers()
    {
        QFETCH(Answer, answer);
        QFETCH(HttpLimits, limits);
        QFETCH(QString, sha256);
        QFETCH(QString, message);
        m_server.answer(u"/bad"_s, answer);
        const QStringList before = TestPackage::tree(path(u"apps"_s));
        QCOMPARE(install(update(u"/bad"_s, sha256), limits), message);
        QCOMPARE(TestPackage::tree(path(u"apps"_s)), before);
        QCOMPARE(staged(), QStringList());
        QVERIFY(m_ends.isEmpty());
        const bool isFetched = message == otherChecksum || message == notUnpacked;
        QCOMPARE(m_waits, isFetched ? QList<std::chrono::milliseconds>() : fourWaits);
        QVERIFY(m_progress.isEmpty() || std::ranges::max(m_progress) <= 1.0);
    }

    void refusesBadPackages_data()
    {
        QTest::addColumn<QByteArray>("package");
        QTest::addColumn<QString>("message");
        using TestPackage::Entry, TestPackage::zip;
        const auto good = TestPackage::bundle("2.0");
        QTest::newRow("other version")
            << zip(TestPackage::bundle("1.9")) << u"The site says 2.0, but the downloaded app is 1.9."_s;
        auto entries = good;
        entries[2].contents = "no list of properties";
        QTest::newRow("unreadable version")
            << zip(entries) << u"The site says 2.0, but the downloaded app is unknown."_s;
        QTest::newRow("no app") << zip({Entry{"Other.app/Contents/Info.plist", "x"}}) << noApp;
        QTest::newRow("app not at the root")
            << zip({Entry{"Folder/Orvel.app/Contents/bin/orvel", "x", S_IFREG | 0755}}) << noApp;
        QTest::newRow("app as a file") << zip({Entry{"Orvel.app", "x", S_IFREG | 0755}}) << noApp;
        entries = good;
        entries.remove(4);
        QTest::newRow("no program in the app") << zip(entries) << noApp;
        entries = good;
        entries[4].mode = S_IFREG | 0644;
        QTest::newRow("program not executable") << zip(entries) << noApp;
        QTest::newRow("reaches outside") << zip(good + QList<Entry>{{"../../escaped", "out"}}) << notUnpacked;
    }
    void refusesBadPackages()
    {
        QFETCH(QByteArray, package);
        QFETCH(QString, message);
        m_server.answer(u"/package"_s, {.body = package});
        const QStringList before = TestPackage::tree(m_folder->path());
        QCOMPARE(install(update(u"/package"_s)), message);
        QVERIFY(QDir(m_folder->path()).rmdir(u"temporary"_s));
        QCOMPARE(TestPackage::tree(m_folder->path()), before);
        QVERIFY(m_ends.isEmpty());
    }

    void keepsItsStageToItself()
    {
        m_server.answer(u"/slow"_s, {.body = "half", .contentLength = 8, .pace = Pace::stalling});
        auto owner = std::make_unique<QObject>();
        bool isCalled = false;
        PackageInstaller(surroundings())
            .install(
                update(u"/slow"_s), owner.get(), [](double) {},
                [&](const std::expected<void, QString> &) { isCalled = true; });
        QTRY_COMPARE(staged().size(), 1);
        const QFileInfo stage(path(u"temporary/"_s + staged().constFirst()));
        QTRY_COMPARE(QFileInfo(stage.filePath() + u"/Orvel.zip"_s).size(), 4);
        QVERIFY(stage.fileName().startsWith(u"Orvel-update-"));
        QCOMPARE(stage.permissions() & ~QFileDevice::Permissions(0x7000), QFileDevice::Permissions(0x0700));

        owner.reset();
        QVERIFY(staged().isEmpty());
        QTRY_COMPARE(m_server.openConnections(), 0);
        QVERIFY(!isCalled);
    }

    void removesManyFilesBesideTheEventLoop()
    {
        constexpr int files = 10'000;
        m_server.answer(u"/late"_s, {.body = "no package", .pace = Pace::onRelease});
        bool isOver = false;
        PackageInstaller(surroundings())
            .install(
                update(u"/late"_s), &m_owner, [](double) {},
                [&](const std::expected<void, QString> &) { isOver = staged().isEmpty(); });
        QTRY_COMPARE(m_server.requests().size(), 1);
        const QString stage = path(u"temporary/"_s + staged().constFirst());
        for (int i = 0; i < files; ++i)
            QVERIFY(QFile(stage + u'/' + QString::number(i)).open(QIODevice::WriteOnly));
        m_server.release(u"/late"_s);
        bool isSeenHalfway = false;
        for (const QDeadlineTimer deadline(60'000); !isOver && !deadline.hasExpired();) {
            QCoreApplication::processEvents();
            const uint count = QDir(stage).count();
            isSeenHalfway = isSeenHalfway || (count > 10 && count < files);
        }
        QVERIFY(isOver);
        QVERIFY(isSeenHalfway);
    }

    void tellsWhenThereIsNoPlaceToStage()
    {
        PackageInstaller::Surroundings nowhere = surroundings();
        nowhere.temporaryFolder = u"/proc/nowhere"_s;
        QString message;
        PackageInstaller(nowhere).install(
            update(u"/any"_s), &m_owner, [](double) {},
            [&](const std::expected<void, QString> &given) { message = given.error(); });
        QTRY_VERIFY(!message.isEmpty());
    }

    void holdsNoPackageInMemory()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("The sanitizer keeps what is freed.");
#endif
        const auto peak = [] {
            rusage usage = {};
            ::getrusage(RUSAGE_SELF, &usage);
            return usage.ru_maxrss;
        };
        m_server.answer(u"/endless"_s, {.pace = Pace::endless});
        const long before = peak();
        QCOMPARE(install(update(u"/endless"_s), {10min, 10min, 64 << 20}),
                 u"The response is longer than 67108864 bytes."_s);
        QVERIFY2(peak() - before < 32'000, qPrintable(QString::number(peak() - before)));
    }

    void replacesOnlyABundleOfThePersonsOwn()
    {
        PackageInstaller::Surroundings place = surroundings();
        QVERIFY(PackageInstaller(place).canInstall());
        {
            ::chmod(QFile::encodeName(m_folder->path()).constData(), 0755);
            const OrdinaryUser user;
            if (::getuid() == 65534)
                QVERIFY(!PackageInstaller(place).canInstall());
        }
        place.bundle.clear();
        QVERIFY(!PackageInstaller(place).canInstall());
        QCOMPARE(QDir(path(u"apps"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList(u"Orvel.app"_s));
    }
};

QTEST_GUILESS_MAIN(PackageInstallerTest)
#include "tst_packageinstaller.moc"
