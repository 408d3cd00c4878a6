#include "Harness/FakeInstaller.h"
#include "Harness/HttpTestServer.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The prompt and the alert in a window, with a real service behind them and a site of the test's own.
class UpdatesLayerTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    HttpTestServer m_site;
    FakeInstaller m_installer;
    std::unique_ptr<UpdateService> m_service;
    std::unique_ptr<OrvelSession> m_session;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    void publish(const QByteArray &version)
    {
        m_site.answer(u"/version.json"_s,
                      {.contentType = "application/json",
                       .body = "{\"version\": \"" + version + "\", \"download\": \"/x\"}"});
    }
    void check(bool manual)
    {
        m_service->check(manual);
        QTRY_VERIFY(!m_service->isChecking());
    }

    static QQuickItem *find(QQuickItem *item, const QString &text)
    {
        if (item->isVisible() && item->property("text").toString() == text)
            return item;
        for (QQuickItem *const child : item->childItems())
            if (QQuickItem *const match = find(child, text))
                return match;
        return nullptr;
    }
    bool shows(const QString &text) const { return find(m_window->contentItem(), text); }
    /// Waits until the text has come and can be answered, that is, until nothing moves any more.
    void waitFor(const QString &text)
    {
        QTRY_VERIFY(shows(text));
        QTRY_VERIFY(m_window->activeFocusItem() && m_window->activeFocusItem()->property("text").isValid());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }

private slots:
    void init()
    {
        m_workspace.reset();
        m_installer = {};
        m_service = std::make_unique<UpdateService>(
            UpdateService::Options{.installer = &m_installer,
                                   .origin = m_site.url().toString(QUrl::StripTrailingSlash),
                                   .version = u"1.4.2"_s});
        m_session = std::make_unique<OrvelSession>(&m_workspace.store(), &m_workspace.ui(), m_service.get());
        m_engine = std::make_unique<QQmlEngine>();
        m_engine->addImportPath(u":/qt/qml"_s);
        m_session->provideTo(*m_engine);
        QQmlComponent component(m_engine.get());
        component.setData("import QtQuick; import Orvel.Session; import Orvel.Updates\n"
                          "Window { width: 720; height: 560; visible: true\n"
                          "  UpdatesLayer { anchors.fill: parent; updates: Orvel.updates }\n"
                          "  Item { objectName: 'behind'; focus: true } }",
                          QUrl());
        m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
        QVERIFY2(m_window, qPrintable(component.errorString()));
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
    }

    void anOfferIsTakenByReturn()
    {
        publish("1.5");
        check(false);
        waitFor(u"Orvel 1.5 is available"_s);
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
        QCOMPARE(m_installer.installs.size(), 1);
        QTRY_VERIFY(shows(u"Updating…"_s));
        m_installer.progress(0.4);
        QTRY_VERIFY(shows(u"40% — this can take a moment on a slow connection."_s));

        m_installer.done(std::unexpected(u"The update download failed."_s));
        QTRY_VERIFY(shows(u"The update download failed."_s));
        // The keys are where they were.
        press(Qt::Key_Return);
        QCOMPARE(m_installer.installs.size(), 2);
        QTRY_VERIFY(!shows(u"The update download failed."_s));
        m_installer.done({});
        QTRY_VERIFY(!shows(u"Orvel 1.5 is available"_s));
        QVERIFY(m_service->isInstalling());
    }

    void anOfferIsPutOff_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("Escape") << false;
        QTest::newRow("Later") << true;
    }
    void anOfferIsPutOff()
    {
        QFETCH(const bool, byButton);
        publish("1.5");
        check(false);
        waitFor(u"Orvel 1.5 is available"_s);
        if (byButton) {
            press(Qt::Key_Return);
        } else {
            press(Qt::Key_Escape);
        }
        QTRY_VERIFY(!m_service->available());
        QTRY_VERIFY(!shows(u"Orvel 1.5 is available"_s));
        QVERIFY(m_installer.installs.isEmpty());
        QTRY_COMPARE(m_window->activeFocusItem()->objectName(), u"behind"_s);

        check(true);
        QTRY_VERIFY(shows(u"Orvel 1.5 is available"_s));
    }

    void aNewerOfferTakesThePlaceOfTheOneThatStands()
    {
        publish("1.5");
        check(false);
        waitFor(u"Orvel 1.5 is available"_s);
        publish("1.6");
        check(true);
        QTRY_VERIFY(shows(u"Orvel 1.6 is available"_s));
        QVERIFY(!shows(u"Orvel 1.5 is available"_s));
    }

    void aNoticeIsReadOverAnOfferThatStaysBehind()
    {
        publish("1.5");
        check(false);
        waitFor(u"Orvel 1.5 is available"_s);
        m_site.answer(u"/version.json"_s, {.status = 404});
        check(true);
        waitFor(u"The site replied 404 for the update check."_s);
        QTRY_VERIFY(m_window->activeFocusItem()->property("text") == u"OK"_s);
        press(Qt::Key_Escape);
        QTRY_VERIFY(m_service->notice().isEmpty());
        QTRY_VERIFY(!shows(u"Check for Updates"_s));
        QVERIFY(shows(u"Orvel 1.5 is available"_s));
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
        QCOMPARE(m_installer.installs.size(), 1);
    }

    void aNoticeIsAnswered_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Space") << Qt::Key_Space;
        QTest::newRow("Escape") << Qt::Key_Escape;
    }
    void aNoticeIsAnswered()
    {
        QFETCH(const Qt::Key, key);
        publish("1.4.2");
        for (int round = 0; round < 2; ++round) {
            check(true);
            waitFor(u"Orvel 1.4.2 is the latest version."_s);
            QVERIFY(shows(u"Check for Updates"_s));
            press(Qt::Key_Tab);
            press(key);
            QTRY_VERIFY(m_service->notice().isEmpty());
            QTRY_VERIFY(!shows(u"Check for Updates"_s));
        }
        QTRY_COMPARE(m_window->activeFocusItem()->objectName(), u"behind"_s);
    }
};

QTEST_MAIN(UpdatesLayerTest)
#include "tst_updateslayer.moc"
