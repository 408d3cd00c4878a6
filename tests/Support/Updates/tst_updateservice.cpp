#include "Harness/FakeInstaller.h"
#include "Harness/HttpTestServer.h"
#include "Support/Updates/UpdateService.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = HttpTestServer::Answer;
using Pace = HttpTestServer::Pace;
using Kind = UpdateService::Phase::Kind;

namespace
{
/// JSON that is written with single quotes.
QByteArray quoted(QByteArray json)
{
    return json.replace('\'', '"');
}

Answer json(const QByteArray &body)
{
    return {.contentType = "application/json", .body = body};
}
} // namespace

class UpdateServiceTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<HttpTestServer> m_site;
    FakeInstaller m_installer;
    QList<std::chrono::milliseconds> m_waits;
    /// What waits for the test to let time pass, in place of the retries, which come at once.
    std::function<void()> m_waiting;
    QList<QUrl> m_opened;

    UpdateService::Options options()
    {
        const Wait wait = [this](std::chrono::milliseconds time, QObject *owner, std::function<void()> then) {
            m_waits.append(time);
            if (time == 1s || time >= UpdateService::firstRetryDelay)
                m_waiting = std::move(then);
            else
                QTimer::singleShot(0, owner, std::move(then));
        };
        return {
            .installer = &m_installer,
            .origin = m_site->url().toString(QUrl::StripTrailingSlash),
            .version = u"1.4.2"_s,
            .build = u"5"_s,
            .wait = wait,
            .openPage = [this](const QUrl &page) { m_opened.append(page); },
            .limits = {.totalTimeout = 30s, .idleTimeout = 30s, .maxBytes = 4096},
        };
    }

    static void check(UpdateService &service, bool manual)
    {
        service.check(manual);
        QTRY_VERIFY_WITH_TIMEOUT(!service.isChecking(), 20'000);
    }

    /// The site as messages name it.
    QString siteName() const { return m_site->url().authority(); }

private slots:
    void init()
    {
        m_site = std::make_unique<HttpTestServer>();
        m_installer = {};
        m_waits.clear();
        m_waiting = nullptr;
        m_opened.clear();
    }

    void versionsCompareNumberByNumber_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("order");
        QTest::newRow("numbers, not letters") << u"1.10.0"_s << u"1.9.9"_s << 1;
        QTest::newRow("missing parts") << u"2.0"_s << u"2.0.0"_s << 0;
        QTest::newRow("unreadable parts") << u"1.2.x"_s << u"1.2.0"_s << 0;
        QTest::newRow("first difference") << u"1.3"_s << u"1.2.99"_s << 1;
        QTest::newRow("empty") << QString() << u"0.0"_s << 0;
        QTest::newRow("blanks") << u"1. 9"_s << u"1.0"_s << 0;
        QTest::newRow("too large") << u"99999999999999999999"_s << u"1"_s << -1;
    }

    void versionsCompareNumberByNumber()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, order);
        const auto sign = [](std::strong_ordering value) { return value < 0 ? -1 : value > 0 ? 1 : 0; };
        QCOMPARE(sign(UpdateService::compare(a, b)), order);
        QCOMPARE(sign(UpdateService::compare(b, a)), -order);
    }

    void theBuildDecidesBetweenEqualVersions()
    {
        const auto isNewer = [](auto... texts) { return UpdateService::isNewer(texts...); };
        QVERIFY(isNewer(u"1.4.2"_s, u"6"_s, u"1.4.2"_s, u"5"_s));
        QVERIFY(!isNewer(u"1.4.2"_s, u"5"_s, u"1.4.2"_s, u"5"_s));
        QVERIFY(!isNewer(u"1.4.2"_s, u"0"_s, u"1.4.2"_s, u"5"_s));
        QVERIFY(isNewer(u"1.4.3"_s, u"0"_s, u"1.4.2"_s, u"5"_s));
        QVERIFY(!isNewer(u"1.4.1"_s, u"99"_s, u"1.4.2"_s, u"5"_s));
        QVERIFY(!isNewer(u"1.4.2"_s, QString(), u"1.4.2"_s, u"x"_s));
    }

    void theSiteIsTheOneTold()
    {
        QCOMPARE(UpdateService::origin(u"  https://a.example "_s, u"https://b.example"_s),
                 u"https://a.example"_s);
        QCOMPARE(UpdateService::origin(u" \t"_s, u"https://b.example"_s), u"https://b.example"_s);
    }

    void anOfferSaysWhatTheManifestSays_data()
    {
        QTest::addColumn<QByteArray>("manifest");
        QTest::addColumn<AvailableUpdate>("offer");
        const auto site = [](const char *path) {
            return QUrl(u"https://site.example"_s + QLatin1String(path));
        };
        const AvailableUpdate bare{.version = u"2.0"_s, .build = u"0"_s, .pageURL = site("/")};
        const auto with = [&](auto edit) {
            AvailableUpdate offer = bare;
            edit(offer);
            return offer;
        };
        QTest::newRow("no address") << quoted("{'version': '2.0', 'unknown': [1]}") << bare;
        QTest::newRow("nulls") << quoted("{'version': '2.0', 'build': null, 'mac': null}") << bare;
        QTest::newRow("top level") << quoted("{'version': '2.0', 'build': '7', 'notes': 'New <b>', 'page': "
                                             "'get.html', 'download': '/releases/x.zip', 'sha256': 'AB'}")
                                   << AvailableUpdate{u"2.0"_s,     u"7"_s,
                                                      u"New <b>"_s, site("/releases/x.zip"),
                                                      u"AB"_s,      site("/get.html")};
        QTest::newRow("another host")
            << quoted("{'version': '2.0', 'download': 'https://cdn.example/x'}")
            << with([](auto &offer) { offer.downloadURL = QUrl(u"https://cdn.example/x"_s); });
        QTest::newRow("mac before the top level, with its missing checksum")
            << QByteArray(
                   quoted("{'version': '2.0', 'download': '/x', 'sha256': 'AB', 'mac': {'download': '/m'}}"))
            << with([&](auto &offer) { offer.downloadURL = site("/m"); });
        QTest::newRow("this platform before all")
            << quoted("{'version': '2.0', 'download': '/x', 'mac': {'download': '/m', 'sha256': 'CD'}, "
                      "'linux': {'download': '/l', 'sha256': 'EF'}, 'ios': {'download': '/i'}}")
            << with([&](auto &offer) {
                   offer.downloadURL = site("/l");
                   offer.sha256 = u"EF"_s;
               });
        QTest::newRow("over plain http without a checksum")
            << quoted("{'version': '2.0', 'download': 'http://cdn.example/x'}") << bare;
        QTest::newRow("nothing for this platform")
            << quoted("{'version': '2.0', 'download': '/x', 'linux': {}}") << bare;
        QTest::newRow("addresses that are none of the web")
            << quoted("{'version': '2.0', 'download': 'file:///etc/passwd', 'page': 'javascript:a'}")
            << with([](auto &offer) { offer.pageURL = QUrl(u"https://site.example"_s); });
    }

    void anOfferSaysWhatTheManifestSays()
    {
        QFETCH(QByteArray, manifest);
        QFETCH(AvailableUpdate, offer);
        const auto file = VersionFile::read(manifest);
        QVERIFY(file);
        QVERIFY(file->offer(QUrl(u"https://site.example"_s)) == offer);
    }

    void whatIsNoManifestIsNone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("a page") << QByteArray("<!doctype html><title>Not here</title>");
        QTest::newRow("no version") << quoted("{'build': '7'}");
        QTest::newRow("version as a number") << quoted("{'version': 2}");
        QTest::newRow("notes as a list") << quoted("{'version': '2', 'notes': []}");
        QTest::newRow("asset as a text") << quoted("{'version': '2', 'linux': '/x'}");
        QTest::newRow("another platform's address as a number")
            << quoted("{'version': '2', 'ios': {'download': 3}}");
        QTest::newRow("a list") << quoted("[{'version': '2'}]");
        QTest::newRow("cut short") << quoted("{'version': '2'");
        QTest::newRow("broken text") << quoted("{'version': '\xff'}");
        QTest::newRow("deep") << QByteArray(100'000, '[');
    }

    void whatIsNoManifestIsNone()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!VersionFile::read(bytes));
    }

    void aCheckSaysHowItEnded_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("notice");
        QTest::addColumn<int>("requests");
        const auto unread = u"The update check couldn't read %1."_s;
        const auto replied = [](int status) {
            return u"The site replied %1 for the update check."_s.arg(status);
        };
        const QByteArray old = quoted("{'version': '1.4.2', 'build': '5'}");
        QTest::newRow("up to date") << json(old) << u"Orvel 1.4.2 is the latest version."_s << 1;
        QTest::newRow("no type told")
            << Answer{.contentType = {}, .body = old} << u"Orvel 1.4.2 is the latest version."_s << 1;
        QTest::newRow("not decodable") << json("{}") << unread << 1;
        QTest::newRow("a page under 200")
            << Answer{.contentType = "text/html", .body = "<html></html>"} << unread << 1;
        QTest::newRow("another type") << Answer{.contentType = "image/png", .body = old} << unread << 1;
        QTest::newRow("not there") << Answer{.status = 404} << replied(404) << 1;
        QTest::newRow("server error") << Answer{.status = 500} << replied(500) << 3;
        QTest::newRow("redirected without end")
            << Answer{.status = 302, .location = "/version.json"} << replied(302) << 3;
        QTest::newRow("silent") << Answer{.pace = Pace::silent} << QString() << 3;
        QTest::newRow("stalling") << Answer{.body = old, .contentLength = 4000, .pace = Pace::stalling}
                                  << QString() << 3;
        QTest::newRow("dripping") << Answer{.pace = Pace::dripping} << QString() << 3;
        QTest::newRow("endless") << Answer{.pace = Pace::endless} << QString() << 3;
        QTest::newRow("ended early") << Answer{.contentType = "application/json",
                                               .body = old,
                                               .contentLength = 4000}
                                     << QString() << 3;
        QTest::newRow("hanging up") << Answer{.pace = Pace::hangingUp} << QString() << 3;
    }

    // An empty notice stands for the words of the system, which are not ours to fix.
    void aCheckSaysHowItEnded()
    {
        QFETCH(Answer, answer);
        QFETCH(QString, notice);
        QFETCH(int, requests);
        m_site->answer(u"/version.json"_s, answer);
        const int requestsEach = answer.status == 302 ? 11 : 1;
        for (const bool manual : {false, true}) {
            m_waits.clear();
            m_site->forgetRequests();
            auto told = options();
            if (notice.isEmpty())
                told.limits = {.totalTimeout = 500ms, .idleTimeout = 250ms, .maxBytes = 4096};
            UpdateService service(std::move(told));
            check(service, manual);

            QVERIFY(service.phase() == UpdateService::Phase{});
            QVERIFY(!service.available());
            if (!manual)
                QCOMPARE(service.notice(), QString());
            else if (notice.isEmpty())
                QVERIFY(!service.notice().isEmpty());
            else
                QCOMPARE(service.notice(), notice.contains(u'%') ? notice.arg(siteName()) : notice);
            QList<std::chrono::milliseconds> waits;
            if (requests == 3)
                waits = {2s, 4s};
            if (!manual && notice.isEmpty())
                waits.append(UpdateService::firstRetryDelay);
            QVERIFY(m_waits == waits);
            QCOMPARE(m_site->requests().size(), requests * requestsEach);
        }
    }

    void aRequestNamesTheProgramAndNothingElse()
    {
        m_site->answer(u"/version.json"_s, json("{}"));
        UpdateService service(options());
        check(service, false);
        const auto &headers = m_site->requests().constFirst().headers;
        QCOMPARE(headers.value("user-agent"), "Orvel/1.4.2");
        QVERIFY(!headers.contains("cookie"));
    }

    void aSiteThatIsNoAddressIsNeverAsked()
    {
        for (const QString &origin :
             {QString(), u"not an address"_s, u"ftp://site.example"_s, u"https://"_s}) {
            auto asked = options();
            asked.origin = origin;
            UpdateService service(std::move(asked));
            check(service, false);
            QCOMPARE(service.notice(), QString());
            check(service, true);
            QCOMPARE(service.notice(), u"Bad update address."_s);
            QVERIFY(m_waits.isEmpty());
        }
    }

    void aFailureThatPassesIsForgotten()
    {
        m_site->answer(u"/version.json"_s, {.status = 503});
        auto recovering = options();
        recovering.wait = [this](auto, QObject *owner, std::function<void()> then) {
            m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.5'}")));
            QTimer::singleShot(0, owner, std::move(then));
        };
        UpdateService service(std::move(recovering));
        check(service, true);
        QCOMPARE(service.offeredVersion(), u"1.5"_s);
        QCOMPARE(service.notice(), QString());
        QCOMPARE(m_site->requests().size(), 2);
    }

    void anOfferStandsUntilAskedAgain()
    {
        m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.5'}")));
        UpdateService service(options());
        check(service, false);
        m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.6'}")));
        check(service, false);
        QCOMPARE(service.offeredVersion(), u"1.5"_s);
        check(service, true);
        QCOMPARE(service.offeredVersion(), u"1.6"_s);
        service.postpone();
        QVERIFY(!service.available());
        check(service, false);
        QCOMPARE(service.offeredVersion(), u"1.6"_s);
    }

    void oneCheckAtATime()
    {
        m_site->answer(u"/version.json"_s, {.contentType = "application/json",
                                            .body = quoted("{'version': '1.5'}"),
                                            .pace = Pace::onRelease});
        UpdateService service(options());
        service.check(false);
        service.check(true);
        QTRY_COMPARE(m_site->requests().size(), 1);
        m_site->release(u"/version.json"_s);
        QTRY_VERIFY(service.available());
        QCOMPARE(m_site->requests().size(), 1);
    }

    void aCheckThatLosesItsServiceEndsQuietly()
    {
        m_site->answer(u"/version.json"_s, {.pace = Pace::silent});
        {
            UpdateService service(options());
            service.check(true);
            QTRY_COMPARE(m_site->requests().size(), 1);
        }
        QTRY_COMPARE(m_site->openConnections(), 0);
    }

    void anInstallTellsHowFarItIs()
    {
        m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.5', 'download': '/x.zip'}")));
        UpdateService service(options());
        service.install();
        QVERIFY(m_installer.installs.isEmpty());
        check(service, false);

        service.install();
        service.install();
        QVERIFY(m_installer.installs == QList{*service.available()});
        QVERIFY(service.isInstalling());
        QCOMPARE(service.installProgress(), 0.0);
        m_installer.progress(0.25);
        QCOMPARE(service.installProgress(), 0.25);
        service.check(true);
        QVERIFY(service.isInstalling());

        m_installer.done(std::unexpected(u"The update couldn't be unpacked."_s));
        QVERIFY(service.phase() ==
                (UpdateService::Phase{Kind::failed, u"The update couldn't be unpacked."_s}));
        QVERIFY(!service.installProgress());
        QVERIFY(service.available());

        service.install();
        QCOMPARE(m_installer.installs.size(), 2);
        QCOMPARE(service.failure(), QString());
        m_installer.done({});
        QVERIFY(service.isInstalling());
        QVERIFY(!service.available());
        QVERIFY(m_opened.isEmpty());
    }

    void whatCannotBeInstalledHereIsShownOnItsPage()
    {
        m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.5', 'page': '/get'}")));
        UpdateService service(options());
        service.openDownloadPage();
        check(service, false);
        service.install();
        m_site->answer(u"/version.json"_s,
                       json(quoted("{'version': '1.5', 'page': '/get', 'download': '/x'}")));
        m_installer.isAllowed = false;
        check(service, true);
        service.install();
        QVERIFY(m_installer.installs.isEmpty());
        QVERIFY(!service.isInstalling());
        const QUrl page(m_site->url(u"/get"_s));
        QCOMPARE(m_opened, (QList<QUrl>{page, page}));
    }

    void anUpdateInstallsItselfOnlyIfTold()
    {
        m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.5', 'download': '/x.zip'}")));
        UpdateService waiting(options());
        check(waiting, false);
        QVERIFY(!m_waiting);

        auto byItself = options();
        byItself.installsByItself = true;
        UpdateService service(std::move(byItself));
        check(service, false);
        QVERIFY(m_installer.installs.isEmpty());
        QVERIFY(m_waits.endsWith(1s));
        m_waiting();
        QCOMPARE(m_installer.installs.size(), 1);
    }

    void anInstallEndsACheckThatIsUnderWay()
    {
        Answer answer = json(quoted("{'version': '1.5', 'download': '/x.zip'}"));
        m_site->answer(u"/version.json"_s, answer);
        UpdateService service(options());
        check(service, false);
        answer.pace = Pace::onRelease;
        m_site->answer(u"/version.json"_s, answer);
        service.check(true);
        QTRY_COMPARE(m_site->requests().size(), 2);
        service.install();
        QTRY_COMPARE(m_site->openConnections(), 0);
        m_installer.done({});
        m_site->release(u"/version.json"_s);
        QTest::qWait(50);
        QVERIFY(!service.available());
        QVERIFY(service.isInstalling());
    }

    void aCheckThatNothingAnswersIsMadeAgain()
    {
        m_site->answer(u"/version.json"_s, {.pace = Pace::hangingUp});
        UpdateService service(options());
        service.checkRegularly(this);
        m_waiting = nullptr;
        const QList<std::chrono::seconds> delays{10s, 20s, 40s, 80s, 160s, 320s, 640s, 1200s, 1200s};
        for (const auto &delay : delays) {
            QTRY_VERIFY(!service.isChecking());
            QVERIFY(m_waits.endsWith(delay));
            if (&delay == &delays.last())
                m_site->answer(u"/version.json"_s, json(quoted("{'version': '1.5'}")));
            std::exchange(m_waiting, nullptr)();
        }
        QTRY_COMPARE(service.offeredVersion(), u"1.5"_s);
        QVERIFY(!m_waiting);
    }

    void checksGoOnEverySixHours()
    {
        m_site->answer(u"/version.json"_s, json("{}"));
        UpdateService service(options());
        service.checkRegularly(this);
        for (int checks = 1; checks <= 3; ++checks) {
            QTRY_VERIFY(!service.isChecking());
            QCOMPARE(m_site->requests().size(), checks);
            QVERIFY(m_waits.endsWith(6h));
            std::exchange(m_waiting, nullptr)();
        }
        QTRY_VERIFY(!service.isChecking());
    }
};

QTEST_GUILESS_MAIN(UpdateServiceTest)
#include "tst_updateservice.moc"
