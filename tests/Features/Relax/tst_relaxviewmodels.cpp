#include "Features/Relax/RelaxTexts.h"
#include "Features/Relax/RelaxVideoResolver.h"
#include "Features/Relax/RelaxViewModel.h"
#include "Features/Relax/VideoPanelViewModel.h"
#include "Harness/HttpTestServer.h"
#include "Harness/TestWorkspace.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class RelaxViewModelsTest : public QObject
{
    Q_OBJECT

private:
    QList<RelaxLink> saved() { return m_workspace.store().settings().relaxLinks; }
    QStringList savedNames()
    {
        QStringList names;
        for (const RelaxLink &link : saved())
            names.append(link.name);
        return names;
    }
    static void finishTurn() { QCoreApplication::sendPostedEvents(); }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    HttpTestServer m_server;
    std::unique_ptr<RelaxViewModel> m_relax;
    std::unique_ptr<VideoPanelViewModel> m_video;
    std::chrono::milliseconds m_now = 1h;

private slots:
    void init()
    {
        m_workspace.reset();
        m_relax = std::make_unique<RelaxViewModel>();
        m_relax->setSession(&m_session);
        m_relax->sleepTimer().setNow([this] { return m_now; });
        m_video = std::make_unique<VideoPanelViewModel>();
        m_video->setSession(&m_session);
        connect(m_video.get(), &VideoPanelViewModel::videoWanted, m_relax.get(),
                &RelaxViewModel::setUseVideo);
        connect(m_relax.get(), &RelaxViewModel::useVideoChanged, m_video.get(),
                [this] { m_video->setUseVideo(m_relax->usesVideo()); });
    }

    void goesThroughTheScenes()
    {
        m_relax->setScene(u"embers"_s);
        m_relax->nextScene();
        QCOMPARE(m_relax->scene(), u"aurora"_s);
        m_relax->setUseVideo(true);
        m_relax->nextScene();
        QCOMPARE(m_relax->sceneLabel(), u"Ocean"_s);
        QVERIFY(!m_relax->usesVideo());
        m_relax->setScene(u"volcano"_s);
        QCOMPARE(m_relax->scene(), u"ocean"_s);
    }

    void sleepEndsEverything()
    {
        m_relax->setZenMode(true);
        m_relax->setBreathing(true);
        m_relax->setUseVideo(true);
        m_relax->setSleepTimer(5);
        QCOMPARE(m_relax->sleepText(), u"5:00"_s);
        m_now += 1min + 200ms;
        m_relax->sleepTimer().tick();
        QCOMPARE(m_relax->sleepText(), u"4:00"_s);
        // The machine was suspended for much longer than was left.
        m_now += 8h;
        m_relax->sleepTimer().tick();
        QVERIFY(!m_relax->isSleepSet() && m_relax->sleepText().isEmpty());
        QVERIFY(!m_relax->isPlaying() && !m_relax->isBreathing() && !m_relax->usesVideo() &&
                !m_relax->isZenMode());
    }

    void aNewTimerReplacesTheOther()
    {
        QSignalSpy finished(&m_relax->sleepTimer(), &SleepTimer::finished);
        m_relax->setSleepTimer(5);
        m_relax->setSleepTimer(30);
        m_now += 6min;
        m_relax->sleepTimer().tick();
        QCOMPARE(m_relax->sleepText(), u"24:00"_s);
        m_relax->setSleepTimer(0);
        QVERIFY(!m_relax->isSleepSet());
        m_now += 2h;
        m_relax->sleepTimer().tick();
        QCOMPARE(finished.count(), 0);
        m_relax->setSleepTimer(60);
        QCOMPARE(m_relax->sleepText(), u"60:00"_s);
        m_now += 60min;
        m_relax->sleepTimer().tick();
        QCOMPARE(finished.count(), 1);
        QVERIFY(SleepTimer::machineTime() > 0ms);
    }

    void playsPastedLinks()
    {
        m_video->setVideoURL(u"   "_s);
        m_relax->setUseVideo(true);
        m_video->playPastedLink();
        QVERIFY(m_video->notice().startsWith(u"That doesn't look like a link."));
        QVERIFY(!m_relax->usesVideo() && !m_video->hasSource());
        QCOMPARE(m_workspace.store().settings().relaxLastURL, QString());

        m_video->setVideoURL(u" youtu.be/abc "_s);
        m_video->playPastedLink();
        QVERIFY(m_relax->usesVideo() && m_video->hasSource() && !m_video->isMedia());
        QCOMPARE(m_video->sourceLabel(), u"YouTube"_s);
        QCOMPARE(m_video->notice(), QString());
        QCOMPARE(m_workspace.store().settings().relaxLastURL, u"youtu.be/abc"_s);
        m_video->setVideoURL(u"https://example.org/page"_s);
        m_video->playPastedLink();
        QCOMPARE(m_video->notice(), u"This link plays in a small web player."_s);
    }

    void whatAServerCallsAVideoMovesToThePlayer()
    {
        m_server.answer(u"/clip"_s, {.contentType = "video/mp4"});
        m_server.answer(u"/slow"_s, {.contentType = "video/mp4", .pace = HttpTestServer::Pace::onRelease});
        m_video->setVideoURL(m_server.url(u"/clip"_s).toString());
        m_video->playPastedLink();
        QVERIFY(!m_video->isMedia());
        QTRY_VERIFY(m_video->isMedia());
        QCOMPARE(m_video->notice(), QString());

        // The answer for a link that was replaced meanwhile changes nothing.
        m_video->setVideoURL(m_server.url(u"/slow"_s).toString());
        m_video->playPastedLink();
        QTRY_COMPARE(m_server.openConnections(), 1);
        m_video->setVideoURL(u"https://youtu.be/abc"_s);
        m_video->playPastedLink();
        m_server.release(u"/slow"_s);
        QTRY_COMPARE(m_server.openConnections(), 0);
        QTest::qWait(50);
        QVERIFY(!m_video->isMedia());
    }

    void savesLinks()
    {
        m_video->setVideoURL(u"https://a.org/rain.mp4"_s);
        m_video->saveCurrentLink();
        m_video->setVideoURL(u" https://youtu.be/abc "_s);
        m_video->setLinkName(u" Evening "_s);
        m_video->saveCurrentLink();
        QCOMPARE(m_video->linkName(), QString());
        QCOMPARE(savedNames(), (QStringList{u"rain.mp4"_s, u"Evening"_s}));
        m_video->setVideoURL(u"https://a.org/rain.mp4"_s);
        m_video->setLinkName(u"Rain"_s);
        m_video->saveCurrentLink();
        QCOMPARE(savedNames(), (QStringList{u"Evening"_s, u"Rain"_s}));
        m_video->setVideoURL(u" "_s);
        m_video->saveCurrentLink();
        QCOMPARE(saved().size(), 2);

        finishTurn();
        m_video->playLink(saved().first().id);
        finishTurn();
        QCOMPARE(m_video->videoURL(), u"https://youtu.be/abc"_s);
        QVERIFY(m_video->linkList()[0].isActive && !m_video->linkList()[1].isActive);
        m_relax->setUseVideo(false);
        QVERIFY(!m_video->linkList()[0].isActive);
        m_video->deleteLink(saved().first().id);
        finishTurn();
        QCOMPARE(savedNames(), QStringList{u"Rain"_s});
        QCOMPARE(m_video->linkList().size(), 1);
    }

    void namesUnnamedLinks_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("name");
        QTest::newRow("file") << u"https://a.org/x/rain.mp4?t=1"_s << u"rain.mp4"_s;
        QTest::newRow("local") << u"file:///home/a/Sea%20at%20night.mov"_s << u"Sea at night.mov"_s;
        QTest::newRow("folder") << u"file:///"_s << u"Video file"_s;
        QTest::newRow("youtube") << u"youtu.be/abc"_s << u"YouTube"_s;
        QTest::newRow("streamable") << u"streamable.com/abc"_s << u"Streamable"_s;
        QTest::newRow("vimeo") << u"https://vimeo.com/123"_s << u"Vimeo"_s;
        QTest::newRow("page") << u"https://example.org/a"_s << u"example.org"_s;
        QTest::newRow("none") << u"  "_s << u"Saved link"_s;
    }
    void namesUnnamedLinks()
    {
        QFETCH(QString, address);
        QTEST(RelaxTexts::defaultLinkName(address), "name");
    }
};

QTEST_MAIN(RelaxViewModelsTest)
#include "tst_relaxviewmodels.moc"
