#include "Harness/HttpTestServer.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The section of updates in a window, with a real service behind it and a site of the test's own.
class SettingsUpdatesTest : public QObject
{
    Q_OBJECT

private:
    static QQuickItem *find(QQuickItem *item, const QString &text)
    {
        if (item->isVisible() && item->property("text").toString() == text)
            return item;
        for (QQuickItem *const child : item->childItems())
            if (QQuickItem *const match = find(child, text))
                return match;
        return nullptr;
    }

private slots:
    void asksTheSiteOnce()
    {
        TestWorkspace workspace;
        workspace.reset();
        HttpTestServer site;
        site.answer(u"/version.json"_s, {.contentType = "application/json",
                                         .body = "{\"version\": \"1.4.2\"}",
                                         .pace = HttpTestServer::Pace::onRelease});
        UpdateService updates({.origin = site.url().toString(QUrl::StripTrailingSlash),
                               .version = u"1.4.2"_s,
                               .build = u"7"_s});
        OrvelSession session(&workspace.store(), &workspace.ui(), &updates);
        QQmlEngine engine;
        engine.addImportPath(u":/qt/qml"_s);
        session.provideTo(engine);
        QQmlComponent component(&engine);
        component.setData("import QtQuick; import Orvel.Settings\n"
                          "Window { width: 900; height: 700; visible: true\n"
                          "  SettingsView { anchors.fill: parent; focus: true } }",
                          QUrl());
        const std::unique_ptr<QObject> window(component.create());
        auto *const view = qobject_cast<QQuickWindow *>(window.get());
        QVERIFY2(view, qPrintable(component.errorString()));
        view->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(view));
        QVERIFY(find(view->contentItem(), u"Orvel 1.4.2 (7)"_s));
        QVERIFY(find(view->contentItem(), u"Orvel checks 127.0.0.1:%1 on launch and whenever you ask, then "
                                          "offers any newer build here."_s.arg(site.url().port())));

        QQuickItem *const button = find(view->contentItem(), u"Check for updates"_s);
        QVERIFY(button);
        button->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(updates.isChecking());
        QVERIFY(button->opacity() < 1);
        QTest::keyClick(view, Qt::Key_Return);
        QTRY_COMPARE(site.requests().size(), 1);
        site.release(u"/version.json"_s);
        QTRY_VERIFY(!updates.isChecking());
        QCOMPARE(site.requests().size(), 1);
        QCOMPARE(updates.notice(), u"Orvel 1.4.2 is the latest version."_s);
        QCOMPARE(button->opacity(), 1);
        QVERIFY2(button->hasActiveFocus(), "the keyboard is where it was");

        site.answer(u"/version.json"_s,
                    {.contentType = "application/json", .body = "{\"version\": \"2.0\"}"});
        QTest::keyClick(view, Qt::Key_Return);
        QTRY_VERIFY(updates.isOffering());
        QCOMPARE(updates.offeredVersion(), u"2.0"_s);
    }
};

QTEST_MAIN(SettingsUpdatesTest)
#include "tst_settingsupdates.moc"
