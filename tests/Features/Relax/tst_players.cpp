#include "Features/Relax/LoopingVideoController.h"
#include "Features/Relax/WebPlayer.h"
#include "Harness/HttpTestServer.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <grp.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// Stands in the place of the media player.
class FakePlayer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QUrl source MEMBER source)
    Q_PROPERTY(int loops MEMBER loops)

public:
    Q_INVOKABLE void play() { calls.append(u"play"_s); }
    Q_INVOKABLE void pause() { calls.append(u"pause"_s); }
    Q_INVOKABLE void stop() { calls.append(u"stop"_s); }

    QUrl source;
    int loops = 1;
    QStringList calls;
};

/// Counts what a video sink is given; its type belongs to a library that the test does without.
class FrameCounter : public QObject
{
    Q_OBJECT

public:
    int frames = 0;
    /// In milliseconds.
    qint64 longestGap = 0;

public slots:
    void count()
    {
        if (frames++ > 0)
            longestGap = std::max(longestGap, m_sinceFrame.elapsed());
        m_sinceFrame.start();
    }

private:
    QElapsedTimer m_sinceFrame;
};

/// Tries everything that no page is to be given, and tells the server what came of it.
QByteArray intrusivePage(const QUrl &otherHost)
{
    return R"(<!doctype html><title>intrusive</title><body><script>
        const tell = (what, how) => fetch('/told/' + what + '/' + how)
        const ask = (what, promise) => promise.then(() => tell(what, 'granted'), () => tell(what, 'refused'))
        const media = navigator.mediaDevices
        ask('camera', media ? media.getUserMedia({video: true}) : Promise.reject())
        ask('microphone', media ? media.getUserMedia({audio: true}) : Promise.reject())
        ask('screen', media ? media.getDisplayMedia({video: true}) : Promise.reject())
        ask('place', new Promise((yes, no) => navigator.geolocation.getCurrentPosition(yes, no)))
        ask('notifications', Notification.requestPermission().then(p => p === 'granted' ? 0 : Promise.reject()))
        ask('clipboard', navigator.clipboard.readText())
        tell('window', window.open('/window') ? 'granted' : 'refused')
        alert('Stay here'); tell('alert', 'over')
        const link = document.createElement('a')
        link.href = '/file.bin'; link.download = 'file.bin'; document.body.append(link); link.click()
        setTimeout(() => { location.href = 'orvel-test:anything' }, 300)
        setTimeout(() => { location.href = 'OTHER' }, 600)
        setTimeout(() => { location.href = 'file:///etc/passwd' }, 900)
        setTimeout(() => tell('end', 'reached'), 1500)
        </script>)"_ba.replace("OTHER", otherHost.toEncoded());
}
} // namespace

class PlayersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QQuickView> shown(const QUrl &url, bool isMedia)
    {
        auto view = std::make_unique<QQuickView>();
        view->engine()->addImportPath(u":/qt/qml"_s);
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->setInitialProperties({{u"url"_s, url}, {u"isMedia"_s, isMedia}, {u"isPlaying"_s, true}});
        view->setSource(QUrl(u"qrc:/qt/qml/Orvel/Relax/VideoSurface.qml"_s));
        view->resize(480, 320);
        view->show();
        return view;
    }
    /// A second of video; empty on a machine that can't make one.
    QString video()
    {
        const QString path = m_folder.filePath(u"second.webm"_s);
        QProcess::execute(u"gst-launch-1.0"_s,
                          {u"-q"_s, u"videotestsrc"_s, u"num-buffers=30"_s, u"pattern=red"_s, u"!"_s,
                           u"video/x-raw,width=160,height=120,framerate=30/1"_s, u"!"_s, u"vp8enc"_s,
                           u"deadline=1"_s, u"!"_s, u"webmmux"_s, u"!"_s, u"filesink"_s,
                           u"location="_s + path});
        return QFileInfo(path).size() > 0 ? path : QString();
    }
    static QObject *player(const QQuickView &view)
    {
        for (QObject *child : view.rootObject()->findChildren<QObject *>())
            if (child->inherits("QMediaPlayer"))
                return child;
        return nullptr;
    }
    static bool shows(const QQuickView &view, const QString &text)
    {
        const auto items = view.rootObject()->findChildren<QQuickItem *>();
        return std::ranges::any_of(items, [&text](const QQuickItem *item) {
            return item->isVisible() && item->property("text").toString() == text;
        });
    }

    QTemporaryDir m_folder;

private slots:
    void controlsThePlayer()
    {
        FakePlayer player;
        LoopingVideoController controller;
        controller.setPlayer(&player);
        QCOMPARE(player.loops, -1);
        const QUrl rain(u"https://example.org/rain.mp4"_s);
        controller.start(rain);
        controller.start(rain);
        QCOMPARE(player.source, rain);
        QCOMPARE(player.calls, (QStringList{u"play"_s, u"play"_s}));
        controller.setPlaying(false);
        controller.start(rain);
        QCOMPARE(player.calls.mid(2), (QStringList{u"pause"_s, u"pause"_s}));
        player.calls.clear();
        controller.start(QUrl(u"https://example.org/sea.mp4"_s));
        QCOMPARE(player.calls, (QStringList{u"stop"_s, u"pause"_s}));
        // What the player gave up is begun again.
        controller.setPlaying(true);
        player.calls.clear();
        controller.setPlayerHasError(true);
        QTRY_COMPARE(player.calls, QStringList{u"play"_s});
        controller.setPlayerHasError(false);
        QVERIFY(!controller.hasFailed());
        controller.stop();
        QVERIFY(player.source.isEmpty() && controller.loadedURL().isEmpty());

        // Files come only from where the user may read, and no device is one.
        for (const QUrl &url : {QUrl(u"file:///nowhere/film.mp4"_s), QUrl(u"file:///dev/zero"_s)}) {
            controller.start(url);
            QVERIFY(controller.hasFailed() && player.source.isEmpty());
        }
    }

    void loopsWithoutGaps()
    {
        const QString file = video();
        if (file.isEmpty())
            QSKIP("This machine can't make a video.");
        QElapsedTimer sinceStart;
        sinceStart.start();
        const auto view = shown(QUrl::fromLocalFile(file), true);
        QObject *const media = player(*view);
        if (!media)
            QSKIP("This machine lacks the media player.");
        auto *const output = media->property("videoOutput").value<QObject *>();
        QObject *const sink = output->property("videoSink").value<QObject *>();
        QVERIFY(sink);
        // Three times through, without stopping anywhere for a moment that is seen.
        FrameCounter counter;
        QVERIFY(connect(sink, SIGNAL(videoFrameChanged(QVideoFrame)), &counter, SLOT(count())));
        QTRY_VERIFY_WITH_TIMEOUT(counter.frames > 75, 30'000);
        QVERIFY2(counter.longestGap < 500, qPrintable(QString::number(counter.longestGap)));
        QVERIFY(!media->property("audioOutput").value<QObject *>());
        // It fills the view, beyond its edges where it has to.
        QTRY_VERIFY(view->grabWindow().pixelColor(2, 2).red() > 150);
        QVERIFY(view->grabWindow().pixelColor(477, 317).red() > 150);

        view->rootObject()->setProperty("isPlaying", false);
        QTRY_COMPARE(media->property("playbackState").toInt(), 2);
        // The look at it six seconds after the beginning finds nothing wrong.
        QTRY_VERIFY_WITH_TIMEOUT(sinceStart.elapsed() > 6'500, 10'000);
        QVERIFY(!shows(*view, u"This file can't be played here."_s));
        const auto held = media->property("position");
        QTest::qWait(200);
        QCOMPARE(media->property("position"), held);
    }

    void tellsOfAFileThatIsNoVideo()
    {
        QFile file(m_folder.filePath(u"text.mp4"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no video") > 0);
        file.close();
        const auto view = shown(QUrl::fromLocalFile(file.fileName()), true);
        if (!player(*view))
            QSKIP("This machine lacks the media player.");
        QTRY_VERIFY_WITH_TIMEOUT(shows(*view, u"This file can't be played here."_s), 20'000);
    }

    void keepsPagesOnTheirHost_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("asPage");
        QTest::addColumn<bool>("asFrame");
        QTest::newRow("same host") << u"https://Player.example.org/other?x"_s << true << true;
        QTest::newRow("with www") << u"http://www.player.example.org/"_s << true << true;
        QTest::newRow("parent") << u"https://example.org/"_s << false << true;
        QTest::newRow("alike") << u"https://player.example.org.evil.net/"_s << false << true;
        QTest::newRow("user name") << u"https://player.example.org@evil.net/"_s << false << true;
        QTest::newRow("file") << u"file:///etc/passwd"_s << false << false;
        QTest::newRow("other program") << u"mailto:me@player.example.org"_s << false << false;
        QTest::newRow("made by the page") << u"data:text/html,x"_s << false << true;
    }
    void keepsPagesOnTheirHost()
    {
        QFETCH(QString, address);
        const QUrl link(u"https://player.example.org/embed/1"_s);
        QTEST(WebPlayer::mayGoTo(QUrl(address), link, true), "asPage");
        QTEST(WebPlayer::mayGoTo(QUrl(address), link, false), "asFrame");
    }

    void givesPagesNothing()
    {
        HttpTestServer server;
        HttpTestServer other;
        QUrl otherHost = other.url(u"/elsewhere"_s);
        otherHost.setHost(u"localhost"_s);
        server.answer(u"/page"_s, {.contentType = "text/html", .body = intrusivePage(otherHost)});
        server.answer(u"/file.bin"_s, {.contentType = "application/octet-stream", .body = "data"});
        const auto view = shown(server.url(u"/page"_s), false);
        const bool isLoaded = view->rootObject()->findChild<QObject *>(u"webView"_s);
        if (!isLoaded)
            QSKIP("This machine can't show pages of the web.");
        QSet<QByteArray> told;
        const auto isTold = [&](const QByteArray &what) {
            for (const auto &request : server.requests())
                told.insert(request.target);
            return told.contains("/told/" + what);
        };
        QTRY_VERIFY_WITH_TIMEOUT(isTold("end/reached"), 60'000);
        for (const char *const what :
             {"camera", "microphone", "screen", "place", "notifications", "clipboard", "window"})
            QVERIFY2(isTold(QByteArray(what) + "/refused"), what);
        QVERIFY(isTold("alert/over"));
        QVERIFY(!told.contains("/window"));
        QVERIFY(other.requests().isEmpty());
        // No trace of it is left: neither a download nor a cookie.
        const QDir home(qEnvironmentVariable("HOME"));
        QDirIterator files(home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString name = QFileInfo(files.next()).fileName();
            QVERIFY2(!name.contains(u"file.bin"_s) && name != u"Cookies"_s, qPrintable(name));
        }
    }
};

/// The web player shows nothing to the system administrator.
static void becomeNobody()
{
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0))
        qWarning("The test can't become an ordinary user, to whom alone pages are shown.");
}

int main(int argc, char **argv)
{
    becomeNobody();
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char *const name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    QGuiApplication application(argc, argv);
    PlayersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_players.moc"
