#include "App/OrvelCommands.h"
#include "App/ThemeSync.h"
#include "DesignSystem/OVTheme.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"
#include "Store/PageOperations.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The real main window before a workspace of its own.
class OrvelWindowTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    SystemAppearance m_desktop;
    ThemeSync m_theme{&m_workspace.store(), &m_desktop};
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui(), &m_workspace.updates()};
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;

    WorkspaceStore &store() { return m_workspace.store(); }
    UIState &ui() { return m_workspace.ui(); }
    void edit(const std::function<void(AppSettings &)> &change) { store().changeSettings(change); }

    void open() { open("WorkspaceLayer"); }
    /// Opens the window and waits for the layer that it begins with.
    void open(const QByteArray &layer)
    {
        load();
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        // The layer follows the first frame.
        QTRY_VERIFY(item(layer));
        QTRY_COMPARE(item(layer)->parentItem()->property("status").toInt(), 1);
    }
    void load()
    {
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_engine->addImportPath(u":/qt/qml"_s);
        m_session.provideTo(*m_engine);
        m_engine->setInitialProperties({{u"placementPath"_s, QString()}});
        m_engine->load(QUrl(u"qrc:/qt/qml/Orvel/App/OrvelWindow.qml"_s));
        QVERIFY(!m_engine->rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().constFirst());
    }
    QQuickItem *root() const { return m_window->contentItem()->childItems().constFirst(); }
    template <typename Found>
    static QQuickItem *find(QQuickItem *item, const Found &found)
    {
        if (found(item))
            return item;
        for (QQuickItem *const child : item->childItems())
            if (QQuickItem *const match = find(child, found))
                return match;
        return nullptr;
    }
    QQuickItem *item(const QByteArray &type) const
    {
        return find(root(), [&](QQuickItem *candidate) {
            return QByteArray(candidate->metaObject()->className()).startsWith(type + "_QML");
        });
    }
    QQuickItem *menuBar() const { return item("OrvelMenuBar"); }

    void press(const QString &keys)
    {
        const QKeyCombination combination = QKeySequence(keys, QKeySequence::PortableText)[0];
        QTest::keyClick(m_window, combination.key(), combination.keyboardModifiers());
    }
    /// Presses the keys of every command in turn and looks at what comes of it.
    void pressEveryKey()
    {
        const OrvelCommands commands;
        for (const OrvelCommand *command : commands.menus().at(2).commands.first(11)) {
            press(command->keys.first());
            QCOMPARE(ui().selection().text(), command->id);
        }
        press(u"Ctrl+,"_s);
        QCOMPARE(ui().selection().text(), u"settings"_s);
        press(u"Ctrl+N"_s);
        QCOMPARE(ui().selection(), Destination::page(store().pages().all().last().id));
        press(u"Ctrl+Shift+N"_s);
        QCOMPARE(ui().selection(), Destination::page(store().pages().all().last().id));
        press(u"Ctrl+Shift+K"_s);
        QCOMPARE(ui().selection().text(), u"tasks"_s);
        press(u"Ctrl+Shift+D"_s);
        press(u"Ctrl+Shift+L"_s);
        press(u"Ctrl+Shift+T"_s);
        press(u"Ctrl+Shift+S"_s);
        QVERIFY(!ui().isSidebarVisible());
        ui().setRandomQuote(std::nullopt);
        press(u"Ctrl+Shift+Q"_s);
        QVERIFY(ui().randomQuote());
        press(u"Ctrl+/"_s);
        QVERIFY(ui().isShortcutsPresented());
        ui().setShortcutsPresented(false);
        press(u"Ctrl+K"_s);
        QVERIFY(ui().isSearchPresented());
        ui().setSearchPresented(false);

        const QString saved = m_workspace.saved();
        for (const auto &part :
             {u"\"kind\":\"page\"", u"\"kind\":\"note\"", u"\"title\":\"Untitled task\"",
              u"\"navigation\":\"tabsTop\"", u"\"appearance\":\"light\"", u"\"accent\":\"graphite\""})
            QVERIFY2(saved.contains(part), qPrintable(saved));
    }

private slots:
    /// Whatever is made before it keeps the first frame waiting: it shows the ground and the mark, nothing
    /// else.
    void theFirstFrameWaitsForNothingThatItDoesNotShow()
    {
        edit([](AppSettings &settings) { settings.reducedMotion = false; });
        load();
        std::optional<qsizetype> objects;
        connect(m_window, &QQuickWindow::afterAnimating, m_engine.get(), [&] {
            if (!objects)
                objects = m_window->findChildren<QObject *>().size();
        });
        QTRY_VERIFY(objects);
        QVERIFY2(*objects <= 120, qPrintable(u"%1 objects"_s.arg(*objects)));
        QTRY_VERIFY(item("WorkspaceLayer"));
    }

    void init()
    {
        m_workspace.reset();
        edit([](AppSettings &settings) { settings.reducedMotion = true; });
    }
    void cleanup() { m_engine.reset(); }

    void beginsWithTheIntroOnceALaunch()
    {
        edit([](AppSettings &settings) { settings.reducedMotion = false; });
        load();
        QVERIFY(item("OrvelIntroView"));
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_window, Qt::Key_Space);
        QTRY_VERIFY(!item("OrvelIntroView"));
        QTRY_VERIFY(item("WorkspaceLayer") && item("WorkspaceLayer")->hasActiveFocus());
        edit([](AppSettings &settings) { settings.theme.accent = AccentPalette::teal; });
        QTest::qWait(0);
        QVERIFY(!item("OrvelIntroView"));
    }

    void theKeyboardFollowsTheIntroIntoTheWorkspace()
    {
        edit([](AppSettings &settings) { settings.reducedMotion = false; });
        open();
        QTRY_VERIFY(!item("OrvelIntroView"));
        press(u"Ctrl+N"_s);
        QTRY_VERIFY(item("PageTitleField"));
        QTRY_VERIFY(item("PageTitleField")->hasActiveFocus());
        for (const char letter : {'t', 'r', 'i', 'p'})
            QTest::keyClick(m_window, letter);
        QCOMPARE(store().pages().all().last().title, u"trip"_s);
    }

    void beginsAtOnceWithoutMotion_data()
    {
        QTest::addColumn<bool>("inkMode");
        QTest::newRow("reduced motion") << false;
        QTest::newRow("ink mode") << true;
    }
    void beginsAtOnceWithoutMotion()
    {
        QFETCH(const bool, inkMode);
        edit([&](AppSettings &settings) {
            settings.inkMode = inkMode;
            settings.reducedMotion = !inkMode;
        });
        open();
        QVERIFY(!item("OrvelIntroView"));
        QVERIFY(item("WorkspaceLayer")->hasActiveFocus());
    }

    void theFirstRunGivesWayToTheWorkspaceAndComesBackFresh()
    {
        m_workspace.resetToFirstRun();
        ui().select(u"tasks"_s);
        edit([](AppSettings &settings) { settings.reducedMotion = true; });
        open("OnboardingLayer");
        QVERIFY(!item("WorkspaceLayer"));
        QVERIFY(!menuBar());
        for (int round = 0; round < 2; ++round) {
            QTRY_VERIFY(item("OnboardingLayer")->hasActiveFocus());
            QTRY_VERIFY(!item("WorkspaceLayer"));
            press(u"Return"_s);
            for (const char letter : {'A', 'd', 'a'})
                QTest::keyClick(m_window, letter);
            for (int step = 0; step < 4; ++step)
                press(u"Return"_s);
            QVERIFY(!store().settings().hasCompletedOnboarding);
            press(u"Return"_s);
            QVERIFY(store().settings().hasCompletedOnboarding);
            QCOMPARE(store().settings().userName, u"Ada"_s);
            QCOMPARE(ui().selection().text(), u"dashboard"_s);
            QTRY_VERIFY(!item("OnboardingLayer"));
            QVERIFY(item("WorkspaceLayer")->hasActiveFocus());
            QVERIFY(menuBar()->isVisible());
            press(u"Ctrl+4"_s);
            QCOMPARE(ui().selection().text(), u"tasks"_s);
            store().resetEverything(false);
        }
    }

    void theFirstRunCrossFadesIntoTheWorkspace()
    {
        m_workspace.resetToFirstRun();
        open("OnboardingLayer");
        QTRY_VERIFY(item("OrvelIntroView"));
        press(u"Return"_s);
        QTRY_VERIFY(!item("OrvelIntroView"));
        QVERIFY(item("OnboardingLayer")->hasActiveFocus());
        edit([](AppSettings &settings) { settings.hasCompletedOnboarding = true; });
        QVERIFY(item("WorkspaceLayer")->hasActiveFocus());
        QCOMPARE(item("WorkspaceLayer")->parentItem()->opacity(), 0.0);
        QCOMPARE(item("OnboardingLayer")->parentItem()->opacity(), 1.0);
        QVERIFY(!item("OnboardingLayer")->isEnabled());
        QTRY_VERIFY(!item("OnboardingLayer"));
        QTRY_COMPARE(item("WorkspaceLayer")->parentItem()->opacity(), 1.0);
    }

    void theAppearanceIsShownWhileItIsChosenButNotStored()
    {
        m_workspace.resetToFirstRun();
        edit([](AppSettings &settings) { settings.reducedMotion = true; });
        open("OnboardingLayer");
        for (int step = 0; step < 4; ++step)
            press(u"Return"_s);
        press(u"Shift+Tab"_s);
        press(u"Shift+Tab"_s);
        QVERIFY(m_window->color().lightness() > 128);
        press(u"End"_s);
        QVERIFY(m_window->color().lightness() < 128);
        QVERIFY(m_workspace.saved().contains(u"\"appearance\":\"system\""));
        press(u"Return"_s);
        press(u"Return"_s);
        QTRY_VERIFY(!item("OnboardingLayer"));
        QVERIFY(m_window->color().lightness() < 128);
        QVERIFY(m_workspace.saved().contains(u"\"appearance\":\"dark\""));
        edit([](AppSettings &settings) { settings.appearance = AppearanceMode::light; });
        QVERIFY(m_window->color().lightness() > 128);
    }

    void noCommandReachesBehindTheFirstRun()
    {
        m_workspace.resetToFirstRun();
        edit([](AppSettings &settings) { settings.reducedMotion = true; });
        open("OnboardingLayer");
        const Snapshot before = store().snapshot();
        const QSignalSpy quit(m_engine.get(), &QQmlEngine::quit);
        m_engine->disconnect(qApp);
        const OrvelCommands commands;
        for (const OrvelCommand *command : commands.commands())
            for (const QString &keys : command->keys)
                press(keys);
        press(u"F10"_s);
        QCOMPARE(store().snapshot(), before);
        QCOMPARE(ui().selection(), Destination());
        QVERIFY(!ui().isSearchPresented() && !ui().isShortcutsPresented() && ui().isSidebarVisible());
        QCOMPARE(quit.count(), 1);
        QTRY_COMPARE(m_window->visibility(), QWindow::FullScreen);
        QVERIFY(item("OnboardingLayer")->hasActiveFocus());
    }

    void hasItsSizeAndTitle()
    {
        edit([](AppSettings &settings) { settings.workspaceName = u" \n"_s; });
        open();
        QCOMPARE(m_window->size(), QSize(1240, 820));
        QCOMPARE(m_window->minimumSize(), QSize(720, 480));
        QCOMPARE(m_window->title(), u"Orvel"_s);
        edit([](AppSettings &settings) { settings.workspaceName = u"Studio"_s; });
        QCOMPARE(m_window->title(), u"Studio"_s);
    }

    void everyKeyDoesItsAction()
    {
        open();
        pressEveryKey();
    }

    void everyKeyWorksInTextAndTextKeepsItsOwn_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("line") << QByteArray("TextInput");
        QTest::newRow("area") << QByteArray("TextEdit");
    }
    void everyKeyWorksInTextAndTextKeepsItsOwn()
    {
        QFETCH(const QByteArray, type);
        open();
        QQmlComponent component(m_engine.get());
        component.setData("import QtQuick; " + type + " { width: 200; text: 'one two' }", QUrl());
        auto *const text = qobject_cast<QQuickItem *>(component.create(m_engine->rootContext()));
        QVERIFY2(text, qPrintable(component.errorString()));
        text->setParentItem(m_window->contentItem());
        text->forceActiveFocus();
        QVERIFY(text->hasActiveFocus());

        press(u"End"_s);
        press(u"Ctrl+Shift+Left"_s);
        QCOMPARE(text->property("selectedText"), u"two"_s);
        press(u"Ctrl+X"_s);
        QCOMPARE(text->property("text"), u"one "_s);
        press(u"Ctrl+V"_s);
        press(u"Ctrl+Z"_s);
        QCOMPARE(text->property("text"), u"one "_s);
        press(u"Ctrl+A"_s);
        QCOMPARE(text->property("selectedText"), u"one "_s);

        pressEveryKey();
        QCOMPARE(text->property("text"), u"one "_s);
        delete text;
    }

    void aKeyHeldDownCountsOnce()
    {
        open();
        for (const bool repeated : {false, true, true})
            qt_sendShortcutOverrideEvent(m_window, 0, Qt::Key_N, Qt::ControlModifier, QString(), repeated);
        QCOMPARE(store().pages().size(), 1);
    }

    void theLastAccentIsFollowedByTheFirst()
    {
        edit([](AppSettings &settings) { settings.theme.accent = AccentPalette::red; });
        open();
        press(u"Ctrl+Shift+T"_s);
        QCOMPARE(store().settings().theme.accent, AccentPalette::mono);
        QCOMPARE(OVTheme::current().accent, AccentPalette::mono);
    }

    void inkModeIsLightWhateverElseIsChosen()
    {
        open();
        edit([](AppSettings &settings) { settings.appearance = AppearanceMode::dark; });
        const QColor dark = m_window->color();
        QVERIFY(dark.lightness() < 128);
        edit([](AppSettings &settings) { settings.inkMode = true; });
        QVERIFY(m_window->color().lightness() > 128);
        press(u"Ctrl+Shift+L"_s);
        QVERIFY(m_window->color().lightness() > 128);
    }

    void aChangeOfThemeBuildsTheScreenAnewButNotTheSettings()
    {
        open();
        QQuickItem *const host = item("DetailHost");
        QVERIFY(host);
        const auto screen = [host] { return QPointer(host->property("currentItem").value<QQuickItem *>()); };
        press(u"Ctrl+4"_s);
        QTest::qWait(0);
        auto before = screen();
        QVERIFY(before);
        press(u"Ctrl+Shift+T"_s);
        QTRY_VERIFY(!before);
        QVERIFY(screen());

        press(u"Ctrl+,"_s);
        QTest::qWait(0);
        before = screen();
        press(u"Ctrl+Shift+T"_s);
        press(u"Ctrl+Shift+D"_s);
        QTest::qWait(0);
        QCOMPARE(screen(), before);
        edit([](AppSettings &settings) { settings.userName = u"Ada"_s; });
        press(u"Ctrl+4"_s);
        QTest::qWait(0);
        before = screen();
        edit([](AppSettings &settings) { settings.userName = u"Grace"_s; });
        QTest::qWait(0);
        QCOMPARE(screen(), before);
    }

    void fullScreenHidesTheMenuBar()
    {
        open();
        QVERIFY(menuBar()->isVisible());
        press(u"F11"_s);
        QTRY_COMPARE(m_window->visibility(), QWindow::FullScreen);
        QTRY_VERIFY(!menuBar()->isVisible());
        QCOMPARE(menuBar()->height(), 0.0);
        press(u"F11"_s);
        QTRY_COMPARE(m_window->visibility(), QWindow::Windowed);
        QTRY_VERIFY(menuBar()->isVisible());
    }

    void menusAreWorkedWithMouseAndKeys()
    {
        open();
        const auto title = [this](const QString &text) {
            return find(menuBar(), [&](QQuickItem *candidate) {
                return candidate->property("highlighted").isValid() &&
                       candidate->property("text").toString() == text;
            });
        };
        QQuickItem *const navigate = title(u"&Navigate"_s);
        QVERIFY(navigate);
        QTRY_VERIFY(navigate->x() > 0);
        QTest::mouseClick(m_window, Qt::LeftButton, {},
                          navigate->mapToScene(navigate->boundingRect().center()).toPoint());
        press(u"Down"_s);
        press(u"Down"_s);
        press(u"Return"_s);
        QTRY_COMPARE(ui().selection().text(), u"today"_s);

        QTest::keyClick(m_window, Qt::Key_F, Qt::AltModifier);
        press(u"Down"_s);
        press(u"Return"_s);
        QTRY_COMPARE(store().pages().size(), 1);
    }

    void theFocusComesBackFromMenusAndAlerts_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("F10") << QStringList{u"F10"_s, u"Escape"_s};
        QTest::newRow("F10 twice") << QStringList{u"F10"_s, u"F10"_s};
        QTest::newRow("F10, a menu") << QStringList{u"F10"_s, u"Down"_s, u"Escape"_s, u"Escape"_s};
        QTest::newRow("Alt") << QStringList{u"Alt"_s, u"Escape"_s};
        QTest::newRow("Alt+F") << QStringList{u"Alt+F"_s, u"Escape"_s, u"Escape"_s};
        QTest::newRow("alert") << QStringList{u"Alt+F"_s, u"C"_s, u"Return"_s, u"Return"_s};
        QTest::newRow("palette") << QStringList{u"Ctrl+K"_s, u"Escape"_s};
        QTest::newRow("shortcuts") << QStringList{u"Ctrl+/"_s, u"Escape"_s};
    }
    void theFocusComesBackFromMenusAndAlerts()
    {
        QFETCH(const QStringList, keys);
        open();
        // A menu under the pointer stays the current one of the menu bar.
        for (const int y : {m_window->height() / 2, m_window->height() - 2})
            QTest::mouseMove(m_window, {m_window->width() / 2, y});
        for (const char *const place : {"notes", "tasks", "settings"}) {
            ui().select(QLatin1String(place));
            QTest::qWait(50);
            // Once where the window puts the focus by itself, once where a key puts it.
            for (int round = 0; round < 2; ++round) {
                const QPointer before = m_window->activeFocusItem();
                QVERIFY(before && before != m_window->contentItem());
                for (const QString &key : keys) {
                    if (key == u"Alt")
                        QTest::keyClick(m_window, Qt::Key_Alt);
                    else
                        press(key);
                    QTest::qWait(20);
                }
                QTRY_COMPARE(m_window->activeFocusItem(), before);
                press(u"Tab"_s);
            }
        }
    }

    void anAlertDuringTheStartLeavesTheKeyboardInTheWorkspace()
    {
        edit([](AppSettings &settings) { settings.reducedMotion = false; });
        m_workspace.updates().check(true);
        open();
        const auto alert = [this] {
            return find(m_window->contentItem(), [](QQuickItem *candidate) {
                return candidate->isVisible() && candidate->property("text") == u"Check for Updates"_s &&
                       candidate->inherits("QQuickText");
            });
        };
        QTRY_VERIFY(!item("OrvelIntroView"));
        QTRY_VERIFY(alert());
        press(u"Return"_s);
        QTRY_VERIFY(!alert());
        QVERIFY(item("DetailHost")->hasActiveFocus());
    }

    void undoAndRedoByKeyMenuAndToast()
    {
        open();
        press(u"Ctrl+Shift+K"_s);
        const Snapshot one = store().snapshot();
        press(u"Ctrl+N"_s);
        QTRY_VERIFY(item("PageEditorView"));
        const Snapshot two = store().snapshot();
        ui().select(u"settings"_s);
        QTRY_VERIFY(item("SettingsView"));
        press(u"Ctrl+Z"_s);
        QCOMPARE(store().snapshot(), one);
        press(u"Ctrl+Y"_s);
        QCOMPARE(store().snapshot(), two);
        press(u"Ctrl+Z"_s);
        press(u"Ctrl+Shift+Z"_s);
        QCOMPARE(store().snapshot(), two);
        QTest::keyClick(m_window, Qt::Key_E, Qt::AltModifier);
        press(u"U"_s);
        press(u"Return"_s);
        QTRY_COMPARE(store().snapshot(), one);

        // What a deletion says stays out of the way of the keys, and the next action takes it away.
        const QUuid page(m_workspace.addPage(u"Plan"_s));
        ui().selectPage(page);
        const auto shows = [this](const QString &text) {
            return find(m_window->contentItem(), [&](QQuickItem *candidate) {
                return candidate->isVisible() && candidate->property("text") == text;
            });
        };
        QTRY_VERIFY(shows(u"Plan"_s));
        m_session.undo()->dismissMessage();
        PageOperations::remove(store(), page);
        QTRY_VERIFY(shows(u"Page deleted"_s));
        QTRY_COMPARE(shows(u"Undo"_s)->opacity(), 1.0);
        QQuickItem *const undo = shows(u"Undo"_s);
        QTest::qWait(300);
        QTest::mouseClick(m_window, Qt::LeftButton, {},
                          undo->mapToScene(undo->boundingRect().center()).toPoint());
        QVERIFY(store().pages().first(page));
        QTRY_VERIFY(!shows(u"Page deleted"_s));
        PageOperations::remove(store(), page);
        QTRY_VERIFY(shows(u"Page deleted"_s));
        press(u"Ctrl+Shift+K"_s);
        QTRY_VERIFY(!shows(u"Page deleted"_s));
    }

    void quitIsAskedOfTheApplication()
    {
        open();
        const QSignalSpy quit(m_engine.get(), &QQmlEngine::quit);
        m_engine->disconnect(qApp);
        press(u"Ctrl+Q"_s);
        QCOMPARE(quit.count(), 1);
    }
};

QTEST_MAIN(OrvelWindowTest)
#include "tst_orvelwindow.moc"
