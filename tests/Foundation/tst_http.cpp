#include "Foundation/Http.h"
#include "Harness/HttpTestServer.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = HttpTestServer::Answer;
using Pace = HttpTestServer::Pace;

namespace
{
QString reason(const HttpResult &result)
{
    return result ? QString() : result.error();
}
} // namespace

class HttpTest : public QObject
{
    Q_OBJECT

private:
    static constexpr qint64 mostBytes = 1000;
    /// Limits that no test reaches by being slow.
    static constexpr HttpLimits patient{10min, 10min, mostBytes};
    static constexpr HttpLimits hasty{200ms, 10min, mostBytes};
    static constexpr HttpLimits nervous{10min, 200ms, mostBytes};

    QNetworkAccessManager m_network;
    HttpTestServer m_server;
    QObject m_owner;

    HttpResult get(const QUrl &url, const HttpLimits &limits = patient)
    {
        std::optional<HttpResult> result;
        int calls = 0;
        Http::get(m_network, QNetworkRequest(url), limits, &m_owner, [&](const HttpResult &given) {
            result = given;
            ++calls;
        });
        const bool isAtOnce = result.has_value();
        if (!QTest::qWaitFor([&] { return result.has_value(); }, 60'000))
            return std::unexpected(u"THE TEST GAVE UP"_s);
        // The toolkit keeps a connection that it opened ahead; one that is in use stays.
        m_network.clearConnectionCache();
        // Nothing is left behind: no connection, no exchange, no second answer.
        const bool isClean = QTest::qWaitFor(
            [&] { return m_owner.children().isEmpty() && m_server.openConnections() == 0; }, 60'000);
        if (isAtOnce || !isClean || calls != 1)
            return std::unexpected(u"THE EXCHANGE IS NOT OVER"_s);
        return *result;
    }

private slots:
    void init() { m_server.forgetRequests(); }

    void givesTheAnswerWhateverItsStatus_data()
    {
        QTest::addColumn<int>("status");
        QTest::newRow("fine") << 200;
        QTest::newRow("forbidden") << 403;
        QTest::newRow("missing") << 404;
        QTest::newRow("broken") << 500;
        QTest::newRow("busy") << 503;
    }
    void givesTheAnswerWhateverItsStatus()
    {
        QFETCH(int, status);
        m_server.answer(u"/page"_s,
                        {.status = status, .contentType = "Text/Plain; charset=X", .body = "hello"});
        const HttpResult result = get(m_server.url(u"/page"_s));
        QVERIFY2(result, qPrintable(reason(result)));
        QCOMPARE(result->status, status);
        QCOMPARE(result->isSuccess(), status == 200);
        QCOMPARE(result->contentType, "text/plain; charset=x"_ba);
        QCOMPARE(result->body, "hello"_ba);
        QCOMPARE(m_server.requests().size(), 1);
    }

    void aRefusalIsAnAnswerHoweverItArrives_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::newRow("cut") << Answer{.body = "half", .toldLength = 8};
        QTest::newRow("packed") << Answer{.body = "whole", .contentEncoding = "gzip"};
        QTest::newRow("too long") << Answer{.body = QByteArray(mostBytes + 1, 'x')};
        QTest::newRow("told too long") << Answer{.toldLength = mostBytes + 1, .pace = Pace::stalling};
        QTest::newRow("endless") << Answer{.pace = Pace::endless};
    }
    void aRefusalIsAnAnswerHoweverItArrives()
    {
        QFETCH(Answer, answer);
        for (const int status : {404, 500}) {
            answer.status = status;
            m_server.answer(u"/page"_s, answer);
            const HttpResult result = get(m_server.url(u"/page"_s));
            QVERIFY2(result, qPrintable(reason(result)));
            QCOMPARE(result->status, status);
        }
    }

    void acceptsABodyThatIsCalledUnpacked()
    {
        m_server.answer(u"/page"_s, {.body = "hello", .contentEncoding = "Identity"});
        const HttpResult result = get(m_server.url(u"/page"_s));
        QVERIFY2(result, qPrintable(reason(result)));
        QCOMPARE(result->body, "hello"_ba);
    }

    void asksForHeadersAlone()
    {
        m_server.answer(u"/film"_s, {.contentType = "video/mp4", .toldLength = 5'000'000'000});
        std::optional<HttpResult> result;
        Http::head(m_network, QNetworkRequest(m_server.url(u"/film"_s)), patient, &m_owner,
                   [&](const HttpResult &given) { result = given; });
        QTRY_VERIFY(result);
        QVERIFY2(*result, qPrintable(reason(*result)));
        QCOMPARE((*result)->contentType, "video/mp4"_ba);
        QCOMPARE(m_server.requests().first().method, "HEAD"_ba);
    }

    void refusesBadServers_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<HttpLimits>("limits");
        const QByteArray whole(mostBytes, 'x');
        const auto gzip = QByteArray::fromHex("1f8b08000000000000036b60");
        QTest::newRow("silent") << Answer{.pace = Pace::silent} << nervous;
        QTest::newRow("silent, as a whole") << Answer{.pace = Pace::silent} << hasty;
        QTest::newRow("stalling") << Answer{.body = "half", .toldLength = 8, .pace = Pace::stalling}
                                  << nervous;
        QTest::newRow("dripping") << Answer{.pace = Pace::dripping} << hasty;
        QTest::newRow("endless") << Answer{.pace = Pace::endless} << patient;
        QTest::newRow("too long") << Answer{.body = whole + 'x'} << patient;
        QTest::newRow("told too long")
            << Answer{.body = "short", .toldLength = mostBytes + 1, .pace = Pace::stalling} << patient;
        QTest::newRow("truncated") << Answer{.body = "half", .toldLength = 8} << patient;
        QTest::newRow("truncated and packed")
            << Answer{.body = gzip, .toldLength = 50, .contentEncoding = "gzip"} << patient;
        QTest::newRow("packed badly")
            << Answer{.body = "no gzip at all", .contentEncoding = "gzip"} << patient;
        QTest::newRow("hanging up") << Answer{.pace = Pace::hangingUp} << patient;
        QTest::newRow("redirect loop") << Answer{.status = 302, .location = "/bad"} << patient;
        QTest::newRow("redirect to a file")
            << Answer{.status = 302, .location = "file:///etc/hostname"} << patient;
    }
    void refusesBadServers()
    {
        QFETCH(Answer, answer);
        QFETCH(HttpLimits, limits);
        m_server.answer(u"/bad"_s, answer);
        const HttpResult result = get(m_server.url(u"/bad"_s), limits);
        QVERIFY(!result);
        QVERIFY2(!result.error().startsWith(u"THE "), qPrintable(result.error()));
        QVERIFY(m_server.requests().size() <= 20);
    }

    void takesABodyOfExactlyTheMost()
    {
        m_server.answer(u"/most"_s, {.body = QByteArray(mostBytes, 'x')});
        QVERIFY(get(m_server.url(u"/most"_s)));
    }

    void believesAToldLengthThatIsTooShort()
    {
        m_server.answer(u"/lie"_s, {.body = "more than told", .toldLength = 4});
        const HttpResult result = get(m_server.url(u"/lie"_s));
        QVERIFY2(result, qPrintable(reason(result)));
        QCOMPARE(result->body, "more"_ba);
    }

    void handsABodyOnPieceByPiece()
    {
        m_server.answer(u"/file"_s, {.body = QByteArray(mostBytes, 'x')});
        m_server.answer(u"/gone"_s, {.status = 404, .body = "no file"});
        QByteArray body;
        QList<qint64> told;
        bool isFull = false;
        std::optional<HttpResult> result;
        const auto download = [&](const QString &path) {
            body.clear();
            told.clear();
            result.reset();
            Http::download(
                m_network, QNetworkRequest(m_server.url(path)), patient,
                [&](QByteArrayView bytes, qint64 toldLength) -> std::expected<void, QString> {
                    if (isFull && !bytes.isEmpty())
                        return std::unexpected(u"The disk is full."_s);
                    body += bytes;
                    told.append(toldLength);
                    return {};
                },
                &m_owner, [&](const HttpResult &given) { result = given; });
            return QTest::qWaitFor([&] { return result.has_value(); }, 60'000);
        };
        QVERIFY(download(u"/file"_s));
        QVERIFY2(*result, qPrintable(reason(*result)));
        QVERIFY((*result)->isSuccess() && (*result)->body.isEmpty());
        QCOMPARE(body, QByteArray(mostBytes, 'x'));
        QVERIFY(told.size() >= 2 && std::ranges::count(told, mostBytes) == told.size());

        QVERIFY(download(u"/gone"_s));
        QCOMPARE((*result)->status, 404);
        QVERIFY(told.isEmpty());

        isFull = true;
        QVERIFY(download(u"/file"_s));
        QCOMPARE(reason(*result), u"The disk is full."_s);
    }

    void followsRedirects()
    {
        m_server.answer(u"/from"_s, {.status = 301, .body = "moved", .location = "/to"});
        m_server.answer(u"/to"_s, {.body = "here"});
        const HttpResult result = get(m_server.url(u"/from"_s));
        QVERIFY2(result, qPrintable(reason(result)));
        QCOMPARE(result->body, "here"_ba);
    }

    void asksNothingButTheWeb_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("file") << QUrl::fromLocalFile(QCoreApplication::applicationFilePath());
        QTest::newRow("data") << QUrl(u"data:text/plain,hello"_s);
        QTest::newRow("nothing") << QUrl();
        QTest::newRow("no server there") << QUrl(u"http://127.0.0.1:1/"_s);
    }
    void asksNothingButTheWeb()
    {
        QFETCH(QUrl, url);
        const HttpResult result = get(url);
        QVERIFY(!result);
        QVERIFY2(!result.error().startsWith(u"THE "), qPrintable(result.error()));
    }

    void endsWithItsOwner()
    {
        m_server.answer(u"/slow"_s, {.pace = Pace::onRelease});
        bool isCalled = false;
        auto owner = std::make_unique<QObject>();
        Http::get(m_network, QNetworkRequest(m_server.url(u"/slow"_s)), patient, owner.get(),
                  [&](const HttpResult &) { isCalled = true; });
        QTRY_COMPARE(m_server.requests().size(), 1);
        owner.reset();
        QTRY_COMPARE(m_server.openConnections(), 0);
        QVERIFY(!isCalled);

        // The answer itself may be what ends the owner.
        m_server.answer(u"/quick"_s, {.body = "quick"});
        owner = std::make_unique<QObject>();
        Http::get(m_network, QNetworkRequest(m_server.url(u"/quick"_s)), patient, owner.get(),
                  [&](const HttpResult &) { owner.reset(); });
        QTRY_VERIFY(!owner);
    }

    void keepsToSecureServers()
    {
        const TestCertificate certificate = TestCertificate::make();
        QVERIFY(!certificate.isNull());
        HttpTestServer secure(certificate);
        secure.answer(u"/page"_s, {.body = "hello"});
        QVERIFY(!get(secure.url(u"/page"_s)));
        QVERIFY(secure.requests().isEmpty());

        QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
        trusting.setCaCertificates({certificate.certificate});
        QSslConfiguration::setDefaultConfiguration(trusting);
        m_network.clearConnectionCache();
        const HttpResult trusted = get(secure.url(u"/page"_s));
        QVERIFY2(trusted, qPrintable(reason(trusted)));
        QCOMPARE(trusted->body, "hello"_ba);

        m_server.answer(u"/plain"_s, {.body = "overheard"});
        secure.answer(u"/down"_s, {.status = 302, .location = m_server.url(u"/plain"_s).toEncoded()});
        QVERIFY(!get(secure.url(u"/down"_s)));
        QVERIFY(m_server.requests().isEmpty());

        m_server.answer(u"/up"_s, {.status = 302, .location = secure.url(u"/page"_s).toEncoded()});
        QVERIFY(get(m_server.url(u"/up"_s)));
    }
};

QTEST_GUILESS_MAIN(HttpTest)
#include "tst_http.moc"
