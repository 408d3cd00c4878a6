#include "Foundation/Http.h"
#include "Harness/HttpTestServer.h"

#include <QtTest>

#include <zlib.h>

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

QByteArray gzip(QByteArray bytes)
{
    z_stream stream = {};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(qsizetype(deflateBound(&stream, uLong(bytes.size()))), Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef *>(bytes.data());
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = uInt(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

Answer chunked(const QByteArray &chunks)
{
    return {.raw = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks};
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

    HttpTestServer m_server;
    QObject m_owner;

    HttpResult get(const QUrl &url, const HttpLimits &limits = patient)
    {
        std::optional<HttpResult> result;
        int calls = 0;
        Http::get({url}, limits, &m_owner, [&](const HttpResult &given) {
            result = given;
            ++calls;
        });
        const bool isAtOnce = result.has_value();
        if (!QTest::qWaitFor([&] { return result.has_value(); }, 60'000))
            return std::unexpected(u"THE TEST GAVE UP"_s);
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
        QTest::newRow("cut") << Answer{.body = "half", .contentLength = 8};
        QTest::newRow("packed badly") << Answer{.body = "whole", .contentEncoding = "gzip"};
        QTest::newRow("too long") << Answer{.body = QByteArray(mostBytes + 1, 'x')};
        QTest::newRow("told too long") << Answer{.contentLength = mostBytes + 1, .pace = Pace::stalling};
        QTest::newRow("endless") << Answer{.pace = Pace::endless};
    }
    void aRefusalIsAnAnswerHoweverItArrives()
    {
        QFETCH(Answer, answer);
        for (const int status : {302, 404, 500}) {
            answer.status = status;
            m_server.answer(u"/page"_s, answer);
            const HttpResult result = get(m_server.url(u"/page"_s));
            QVERIFY2(result, qPrintable(reason(result)));
            QCOMPARE(result->status, status);
        }
    }

    void unpacksABody_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::newRow("not packed") << Answer{.body = "hello", .contentEncoding = "Identity"};
        QTest::newRow("packed") << Answer{.body = gzip("hello"), .contentEncoding = "GZip"};
        QTest::newRow("of no told length")
            << Answer{.raw = "HTTP/1.1 200 OK\r\nContent-Encoding: x-gzip\r\n\r\n" + gzip("hello")};
        QTest::newRow("in chunks") << chunked("2\r\nhe\r\n3;x=y\r\nllo\r\n0\r\nTrailer: x\r\n\r\n");
        QTest::newRow("after a hint") << Answer{.raw = "HTTP/1.1 103 Early Hints\r\nLink: x\r\n\r\n"
                                                       "HTTP/1.1 200 OK\r\n\r\nhello"};
    }
    void unpacksABody()
    {
        QFETCH(Answer, answer);
        m_server.answer(u"/page"_s, answer);
        const HttpResult result = get(m_server.url(u"/page"_s));
        QVERIFY2(result, qPrintable(reason(result)));
        QCOMPARE(result->body, "hello"_ba);
        QCOMPARE(m_server.requests().first().headers.value("accept-encoding"), "gzip"_ba);
    }

    void asksForHeadersAlone()
    {
        m_server.answer(u"/film"_s, {.contentType = "video/mp4", .contentLength = 5'000'000'000});
        std::optional<HttpResult> result;
        Http::head({m_server.url(u"/film"_s)}, patient, &m_owner,
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
        const auto packed = [](const QByteArray &body, const QByteArray &encoding = "gzip") {
            return Answer{.body = body, .contentEncoding = encoding};
        };
        const auto endless = [](const QByteArray &start, const QByteArray &filler) {
            return Answer{.raw = start, .filler = filler, .pace = Pace::endless};
        };
        QTest::newRow("silent") << Answer{.pace = Pace::silent} << nervous;
        QTest::newRow("silent, as a whole") << Answer{.pace = Pace::silent} << hasty;
        QTest::newRow("stalling") << Answer{.body = "half", .contentLength = 8, .pace = Pace::stalling}
                                  << nervous;
        QTest::newRow("dripping") << Answer{.pace = Pace::dripping} << hasty;
        QTest::newRow("endless") << Answer{.pace = Pace::endless} << patient;
        QTest::newRow("too long") << Answer{.body = whole + 'x'} << patient;
        QTest::newRow("told too long")
            << Answer{.body = "short", .contentLength = mostBytes + 1, .pace = Pace::stalling} << patient;
        QTest::newRow("truncated") << Answer{.body = "half", .contentLength = 8} << patient;
        QTest::newRow("chunks without an end") << chunked("5\r\nhello\r\n") << patient;
        QTest::newRow("chunk cut") << chunked("5\r\nhel") << patient;
        QTest::newRow("last chunk cut") << chunked("5\r\nhello\r\n0\r\n") << patient;
        QTest::newRow("no chunks") << chunked("hello") << patient;
        QTest::newRow("packed and cut") << packed(gzip("hello").chopped(1)) << patient;
        QTest::newRow("packed and going on") << packed(gzip("hello") + "more") << patient;
        QTest::newRow("packed badly") << packed("no gzip at all") << patient;
        QTest::newRow("packed differently") << packed("hello", "br") << patient;
        QTest::newRow("packed twice") << packed(gzip(gzip("hello")), "gzip, gzip") << patient;
        QTest::newRow("packed too tight") << packed(gzip(QByteArray(100'000, 'x'))) << patient;
        const QByteArray transport = gzip("hello");
        QTest::newRow("packed by its transport")
            << Answer{.raw = "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, chunked\r\n\r\n" +
                             QByteArray::number(transport.size(), 16) + "\r\n" + transport + "\r\n0\r\n\r\n"}
            << patient;
        QTest::newRow("packed nothing without end")
            << endless("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n" + gzip({}).first(10),
                       QByteArray("\0\0\0\xff\xff", 5))
            << patient;
        QTest::newRow("endless header") << endless("HTTP/1.1 200 OK\r\n", "A: b\r\n") << patient;
        QTest::newRow("endless line") << endless("HTTP/1.1 200 OK\r\nA: ", "b") << patient;
        QTest::newRow("endless hints") << endless({}, "HTTP/1.1 103 Early Hints\r\n\r\n") << patient;
        QTest::newRow("endless trailer") << endless(chunked("0\r\n").raw, "A: b\r\n") << patient;
        QTest::newRow("endless chunk header") << endless(chunked("5;").raw, "a=b") << hasty;
        QTest::newRow("no HTTP") << endless({}, "hello ") << patient;
        QTest::newRow("hanging up") << Answer{.pace = Pace::hangingUp} << patient;
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
        m_server.answer(u"/lie"_s, {.body = "more than told", .contentLength = 4});
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
                {m_server.url(path)}, patient,
                [&](QByteArrayView bytes, qint64 contentLength) -> std::expected<void, QString> {
                    if (isFull && !bytes.isEmpty())
                        return std::unexpected(u"The disk is full."_s);
                    body += bytes;
                    told.append(contentLength);
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

    void aRefusedRedirectTellsItsStatus_data()
    {
        QTest::addColumn<QByteArray>("location");
        QTest::newRow("loop") << "/from"_ba;
        QTest::newRow("file") << "file:///etc/hostname"_ba;
        QTest::newRow("no host") << "http://"_ba;
        QTest::newRow("nowhere") << QByteArray();
    }
    void aRefusedRedirectTellsItsStatus()
    {
        QFETCH(QByteArray, location);
        m_server.answer(u"/from"_s, {.status = 307, .location = location});
        const HttpResult result = get(m_server.url(u"/from"_s));
        QVERIFY2(result, qPrintable(reason(result)));
        QCOMPARE(result->status, 307);
        QVERIFY(m_server.requests().size() <= 11);
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
        Http::get({m_server.url(u"/slow"_s)}, patient, owner.get(),
                  [&](const HttpResult &) { isCalled = true; });
        QTRY_COMPARE(m_server.requests().size(), 1);
        owner.reset();
        QTRY_COMPARE(m_server.openConnections(), 0);
        QVERIFY(!isCalled);

        // The answer itself may be what ends the owner.
        m_server.answer(u"/quick"_s, {.body = "quick"});
        owner = std::make_unique<QObject>();
        Http::get({m_server.url(u"/quick"_s)}, patient, owner.get(),
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

        certificate.trust();
        const HttpResult trusted = get(secure.url(u"/page"_s));
        QVERIFY2(trusted, qPrintable(reason(trusted)));
        QCOMPARE(trusted->body, "hello"_ba);

        m_server.answer(u"/plain"_s, {.body = "overheard"});
        secure.answer(u"/down"_s, {.status = 302, .location = m_server.url(u"/plain"_s).toEncoded()});
        const HttpResult refused = get(secure.url(u"/down"_s));
        QVERIFY(refused && refused->status == 302);
        QVERIFY(m_server.requests().isEmpty());

        m_server.answer(u"/up"_s, {.status = 302, .location = secure.url(u"/page"_s).toEncoded()});
        QVERIFY(get(m_server.url(u"/up"_s)));
    }
};

QTEST_GUILESS_MAIN(HttpTest)
#include "tst_http.moc"
