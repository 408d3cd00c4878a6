#include "Features/Relax/RelaxVideoResolver.h"
#include "Harness/HttpTestServer.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = HttpTestServer::Answer;
using Pace = HttpTestServer::Pace;

class RelaxVideoTest : public QObject
{
    Q_OBJECT

private:
    HttpTestServer m_server;

    std::optional<RelaxVideoSource> refine(const RelaxVideoSource &source,
                                           std::chrono::milliseconds patience = 10min)
    {
        std::optional<std::optional<RelaxVideoSource>> refined;
        QObject owner;
        RelaxVideoResolver::refine(source, &owner, [&](const auto &given) { refined = given; }, patience);
        if (refined || !QTest::qWaitFor([&] { return refined.has_value(); }, 60'000))
            qFatal("The probe answers at once, or not at all.");
        return *refined;
    }

private slots:
    void init() { m_server.forgetRequests(); }

    void findsTheLink_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("link");
        QTest::newRow("blank") << u" \n\t"_s << QString();
        QTest::newRow("https") << u"  https://example.org/a?b=c#d\n"_s << u"https://example.org/a?b=c#d"_s;
        QTest::newRow("http") << u"http://example.org/"_s << u"http://example.org/"_s;
        QTest::newRow("capitals") << u"HTTPS://Example.ORG/Film.MP4"_s << u"https://example.org/Film.MP4"_s;
        QTest::newRow("file") << u"file:///home/me/film.mkv"_s << u"file:///home/me/film.mkv"_s;
        QTest::newRow("file in capitals") << u"FILE:///home/me/film"_s << u"file:///home/me/film"_s;
        QTest::newRow("no scheme") << u"youtu.be/abc"_s << u"https://youtu.be/abc"_s;
        QTest::newRow("a port") << u"localhost:8080/film"_s << u"https://localhost:8080/film"_s;
        QTest::newRow("a plain word") << u"ocean"_s << u"https://ocean"_s;
        QTest::newRow("blanks in the path")
            << u"example.org/my film.mp4"_s << u"https://example.org/my%20film.mp4"_s;
        QTest::newRow("two words") << u"ocean waves"_s << QString();
        QTest::newRow("a path") << u"/home/me/film.mp4"_s << QString();
        QTest::newRow("script") << u"javascript:alert(1)"_s << QString();
        QTest::newRow("data") << u"data:text/html,hello"_s << QString();
    }
    void findsTheLink()
    {
        QFETCH(QString, text);
        QFETCH(QString, link);
        const auto url = RelaxVideoResolver::normalizedURL(text);
        QCOMPARE(url ? url->toString(QUrl::FullyEncoded) : QString(), link);
    }

    void sortsLinks_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<bool>("isMedia");
        // Empty where the link itself is what plays.
        QTest::addColumn<QString>("player");
        QTest::addColumn<QString>("label");
        const auto add = [](const char *link, bool isMedia, const QString &player, const char *label) {
            QTest::newRow(link) << QString::fromUtf8(link) << isMedia << player << QString::fromUtf8(label);
        };
        const auto youTube = [](const QString &id) {
            return u"https://www.youtube-nocookie.com/embed/"
                   u"%1?autoplay=1&mute=1&controls=0&loop=1&playlist=%1"
                   "&playsinline=1&modestbranding=1&rel=0&iv_load_policy=3&disablekb=1"_s.arg(id);
        };
        for (const char *link :
             {"https://www.youtube.com/watch?v=aB3-_x", "https://youtube.com/watch?list=L&v=aB3-_x&t=4s",
              "http://m.youtube.com/watch?v=aB3-_x", "https://music.youtube.com/watch?v=aB3-_x",
              "https://WWW.YouTube.com/shorts/aB3-_x", "https://www.youtube.com/embed/aB3-_x?rel=0",
              "https://www.youtube.com/live/aB3-_x/more", "https://youtube.com/v/aB3-_x",
              "https://www.youtube-nocookie.com/embed/aB3-_x", "https://youtu.be/aB3-_x?si=share",
              "https://www.youtu.be/aB3-_x/", "https://www.youtube.com/shorts/other?v=aB3-_x"})
            add(link, false, youTube(u"aB3-_x"_s), "YouTube");
        add("https://www.youtube.com/feed/library", false, {}, "YouTube");
        add("https://www.youtube.com/shorts/", false, {}, "YouTube");
        add("https://www.youtube.com/watch?v=", false, {}, "YouTube");
        add("https://www.youtube.com/Shorts/aB3", false, {}, "YouTube");
        add("https://gaming.youtube.com/watch?v=aB3", false, {}, "YouTube");
        add("https://youtu.be", false, {}, "Web player");
        add("https://example.org/watch?v=aB3", false, {}, "Web player");
        add("https://youtu.be/a%26b%3Fc", false,
            u"https://www.youtube-nocookie.com/embed/a&b%3Fc?autoplay=1&mute=1&controls=0&loop=1"
            "&playlist=a%26b%3Fc&playsinline=1&modestbranding=1&rel=0&iv_load_policy=3&disablekb=1"_s,
            "YouTube");

        const QString streamable = u"https://streamable.com/e/moo?autoplay=1&loop=1&muted=1&nocontrols=1"_s;
        add("https://streamable.com/moo", false, streamable, "Streamable");
        add("https://www.streamable.com/e/moo?x=1", false, streamable, "Streamable");
        add("https://streamable.com/s/hash/moo/", false, streamable, "Streamable");
        add("https://streamable.com/e/", false, {}, "Streamable");
        add("https://streamable.com", false, {}, "Streamable");

        const QString vimeo =
            u"https://player.vimeo.com/video/76979871?autoplay=1&muted=1&loop=1&background=1&autopause=0"_s;
        add("https://vimeo.com/76979871", false, vimeo, "Vimeo");
        add("https://player.vimeo.com/video/76979871?h=1", false, vimeo, "Vimeo");
        add("https://vimeo.com/channels/staffpicks/76979871", false, vimeo, "Vimeo");
        add("https://player.vimeo.com/video", false, {}, "Vimeo");
        add("https://vimeo.com/", false, {}, "Vimeo");

        add("https://example.org/films/Ocean.MP4?download=1", true, {}, "Video file");
        add("https://example.org/live/index.m3u8", true, {}, "Video file");
        add("https://example.org/rain.aiff/", true, {}, "Video file");
        add("file:///home/me/film.of.mine", true, {}, "Video file");
        add("https://example.org/mp4", false, {}, "Web player");
        add("https://example.org/film.mkv", false, {}, "Web player");
        add("https://example.mp4", false, {}, "Web player");
    }
    void sortsLinks()
    {
        QFETCH(QString, link);
        QFETCH(bool, isMedia);
        QFETCH(QString, player);
        QFETCH(QString, label);
        const RelaxVideoSource source = RelaxVideoResolver::resolve(QUrl(link));
        QCOMPARE(source.kind == RelaxVideoSource::Kind::media, isMedia);
        QCOMPARE(source.url.toString(QUrl::FullyEncoded),
                 player.isEmpty() ? QUrl(link).toString(QUrl::FullyEncoded) : player);
        QCOMPARE(source.label(), label);
    }

    void probesUnknownPages_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<bool>("isMedia");
        QTest::newRow("a film") << Answer{.contentType = "Video/MP4"} << true;
        QTest::newRow("a long film") << Answer{.contentType = "video/webm", .contentLength = 9'000'000'000}
                                     << true;
        QTest::newRow("a sound") << Answer{.contentType = "audio/mpeg; x=y"} << true;
        QTest::newRow("a page") << Answer{.contentType = "text/html"} << false;
        QTest::newRow("a playlist") << Answer{.contentType = "application/video/"} << false;
        QTest::newRow("no type") << Answer{.contentType = ""} << false;
        QTest::newRow("hanging up") << Answer{.pace = Pace::hangingUp} << false;
        QTest::newRow("redirect loop")
            << Answer{.status = 302, .contentType = "video/mp4", .location = "/watch"} << false;
    }
    void probesUnknownPages()
    {
        QFETCH(Answer, answer);
        QFETCH(bool, isMedia);
        m_server.answer(u"/watch"_s, answer);
        const QUrl url = m_server.url(u"/watch"_s);
        const auto refined = refine(RelaxVideoSource::embed(url));
        QCOMPARE(refined.has_value(), isMedia);
        if (isMedia)
            QCOMPARE(*refined, RelaxVideoSource::media(url));
        const HttpTestServer::Request request = m_server.requests().first();
        QCOMPARE(request.method, "HEAD"_ba);
        QCOMPARE(request.headers.value("user-agent"), "Mozilla/5.0 (Macintosh; Intel Mac OS X) Orvel"_ba);
    }

    void givesUpOnASilentServer()
    {
        m_server.answer(u"/silent"_s, {.pace = Pace::silent});
        QCOMPARE(refine(RelaxVideoSource::embed(m_server.url(u"/silent"_s)), 100ms), std::nullopt);
        QTRY_COMPARE(m_server.openConnections(), 0);
    }

    void asksNobodyAboutWhatIsKnown()
    {
        m_server.answer(u"/embed/film"_s, {.contentType = "video/mp4"});
        QCOMPARE(refine(RelaxVideoSource::embed(m_server.url(u"/embed/film"_s))), std::nullopt);
        QCOMPARE(refine(RelaxVideoSource::media(m_server.url(u"/film.mp4"_s))), std::nullopt);
        QCOMPARE(refine(RelaxVideoSource::embed(QUrl(u"about:blank"_s))), std::nullopt);
        QVERIFY(m_server.requests().isEmpty());
    }
};

QTEST_GUILESS_MAIN(RelaxVideoTest)
#include "tst_relaxvideo.moc"
