#include "App/OrvelCommands.h"
#include "Harness/ManualClock.h"
#include "Support/OVQuotes.h"
#include "Support/OVShortcuts.h"
#include "Support/OrvelNavigation.h"

#include <QKeySequence>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class OrvelCommandsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    ManualClock m_clock;
    WorkspaceStore m_store{{m_folder.filePath(u"workspace.json"_s), &m_clock, 1h}};
    UIState m_ui;
    UpdateService m_updates{{}};
    OrvelCommands m_commands;

private slots:
    void initTestCase()
    {
        m_commands.setProperty("store", QVariant::fromValue(&m_store));
        m_commands.setProperty("ui", QVariant::fromValue(&m_ui));
        m_commands.setProperty("updates", QVariant::fromValue(&m_updates));
    }
    void init()
    {
        m_store.resetEverything(false);
        m_store.changeSettings([](AppSettings &settings) { settings.hasCompletedOnboarding = true; });
        m_ui.setSelection(Destination());
    }

    void menusStandInTheirOrder()
    {
        const auto titles = [](const OrvelMenu &menu) {
            QStringList lines;
            for (const OrvelCommand &command : menu.commands)
                lines.append((command.startsGroup ? u"--- "_s : QString()) + command.title + u' ' +
                             command.keys);
            return lines;
        };
        const auto menus = OrvelCommands::menus();
        QCOMPARE(menus.size(), 3);
        QCOMPARE(menus[0].title, u"&File"_s);
        QCOMPARE(titles(menus[0]), (QStringList{u"New Page Ctrl+N"_s, u"New Note Ctrl+Shift+N"_s,
                                                u"New Task Ctrl+Shift+K"_s, u"--- Settings… Ctrl+,"_s,
                                                u"--- Check for Updates… "_s, u"--- Quit Ctrl+Q"_s}));
        QCOMPARE(menus[1].title, u"&Navigate"_s);
        QCOMPARE(titles(menus[1]),
                 (QStringList{u"Dashboard Ctrl+1"_s, u"Today Ctrl+2"_s, u"Focus Ctrl+3"_s, u"Tasks Ctrl+4"_s,
                              u"Calendar Ctrl+5"_s, u"Projects Ctrl+6"_s, u"Notes Ctrl+7"_s,
                              u"Databases Ctrl+8"_s, u"Habits Ctrl+Shift+H"_s, u"Insights Ctrl+Shift+I"_s,
                              u"Relax Ctrl+Shift+R"_s, u"--- Command Palette Ctrl+K"_s}));
        QCOMPARE(menus[2].title, u"&View"_s);
        QCOMPARE(titles(menus[2]),
                 (QStringList{u"Cycle Navigation Style Ctrl+Shift+D"_s, u"Cycle Appearance Ctrl+Shift+L"_s,
                              u"Cycle Accent Ctrl+Shift+T"_s, u"Shuffle Daily Quote Ctrl+Shift+Q"_s,
                              u"Keyboard Shortcuts Ctrl+/"_s, u"--- Toggle Sidebar Ctrl+Shift+S"_s,
                              u"--- Full Screen F11"_s}));
    }

    void noKeyAndNoIdIsGivenTwice()
    {
        QSet<QString> ids;
        QSet<QString> keys;
        for (const OrvelCommand &command : OrvelCommands::commands()) {
            QVERIFY2(!ids.contains(command.id) && !keys.contains(command.keys), qPrintable(command.id));
            ids.insert(command.id);
            if (command.keys.isEmpty())
                continue;
            keys.insert(command.keys);
            const QKeySequence sequence(command.keys, QKeySequence::PortableText);
            QVERIFY2(sequence.count() == 1 && sequence[0].key() != Qt::Key_unknown, qPrintable(command.keys));
        }
    }

    void theKeysShownAreTheKeysBound()
    {
        const auto commands = OrvelCommands::commands();
        for (const ShortcutItem &shown : OVShortcuts::all()) {
            const auto bound = std::ranges::find(commands, shown.id, &OrvelCommand::id);
            QVERIFY2(bound != commands.end(), qPrintable(shown.id));
            QCOMPARE(bound->keys, shown.portableKeys());
        }
        QCOMPARE(OVShortcuts::all().size(), 22);
    }

    void newThingsAreMadeAndShown()
    {
        m_commands.run(u"newPage"_s);
        m_clock.advance(1min);
        m_commands.run(u"newNote"_s);
        const auto pages = m_store.pages().all();
        QCOMPARE(pages.size(), 2);
        QCOMPARE(pages[0].title, u"Untitled"_s);
        QCOMPARE(pages[0].icon, u"📄"_s);
        QCOMPARE(pages[0].kind, PageKind::page);
        QCOMPARE(pages[1].icon, u"📝"_s);
        QCOMPARE(pages[1].kind, PageKind::note);
        QCOMPARE(pages[1].sortOrder - pages[0].sortOrder, 60.0);
        QCOMPARE(m_ui.selection(), Destination::page(pages[1].id));

        m_commands.run(u"newTask"_s);
        QCOMPARE(m_store.tasks().size(), 1);
        const TaskItem &task = m_store.tasks().all().first();
        QCOMPARE(task.title, u"Untitled task"_s);
        QCOMPARE(task.status, TaskStatus::todo);
        QCOMPARE(task.priority, TaskPriority::medium);
        QCOMPARE(task.dueDate, m_clock.now());
        QVERIFY(!task.projectID);
        QCOMPARE(m_ui.selection().text(), u"tasks"_s);
    }

    void everyPlaceIsReachedEvenAHiddenOne()
    {
        m_store.changeSettings([](AppSettings &settings) {
            for (const auto &module : enumCases<OrvelModule>())
                settings.setModule(module.value, false);
        });
        auto commands = OrvelCommands::menus().at(1).commands;
        commands.removeLast();
        commands.append({.id = u"settings"_s});
        for (const OrvelCommand &command : commands) {
            m_commands.run(command.id);
            QCOMPARE(m_ui.selection().text(), command.id);
        }
    }

    void theQuoteIsShuffled()
    {
        for (int i = 0; i < 40; ++i) {
            const auto before = m_ui.randomQuote();
            m_commands.run(u"shuffleQuote"_s);
            QVERIFY(m_ui.randomQuote() && m_ui.randomQuote() != before);
        }
    }

    void aCheckForUpdatesAnswers()
    {
        m_commands.run(u"updates"_s);
        QCOMPARE(m_updates.notice(), u"Bad update address."_s);
    }

    void choicesGoRound()
    {
        m_store.changeSettings([](AppSettings &settings) {
            settings.theme.accent = AccentPalette::red;
            settings.theme.navigation = NavigationStyle::glassDock;
            settings.appearance = AppearanceMode::dark;
        });
        const auto cycle = [this] {
            m_commands.run(u"theme"_s);
            m_commands.run(u"cycleNav"_s);
            m_commands.run(u"appearance"_s);
        };
        cycle();
        QCOMPARE(m_store.settings().theme.accent, AccentPalette::mono);
        QCOMPARE(m_store.settings().theme.navigation, NavigationStyle::sidebar);
        QCOMPARE(m_store.settings().appearance, AppearanceMode::system);
        cycle();
        QCOMPARE(m_store.settings().theme.accent, AccentPalette::graphite);
        QCOMPARE(m_store.settings().theme.navigation, NavigationStyle::tabsTop);
        QCOMPARE(m_store.settings().appearance, AppearanceMode::light);
    }

    void beforeTheWorkspaceIsEnteredOnlyTheWindowObeys()
    {
        m_store.resetEverything(false);
        const AppSettings settings = m_store.settings();
        const QSignalSpy quit(&m_commands, &OrvelCommands::quitRequested);
        const QSignalSpy fullScreen(&m_commands, &OrvelCommands::fullScreenToggled);
        for (const OrvelCommand &command : OrvelCommands::commands())
            m_commands.run(command.id);
        QCOMPARE(quit.count(), 1);
        QCOMPARE(fullScreen.count(), 1);
        QCOMPARE(m_store.settings(), settings);
        QVERIFY(m_store.pages().all().isEmpty());
        QVERIFY(m_store.tasks().all().isEmpty());
        QCOMPARE(m_ui.selection(), Destination());
        QVERIFY(!m_ui.isSearchPresented() && !m_ui.isShortcutsPresented() && m_ui.isSidebarVisible());
    }

    void theWindowIsToldWhatIsItsOwn()
    {
        const QSignalSpy quit(&m_commands, &OrvelCommands::quitRequested);
        const QSignalSpy fullScreen(&m_commands, &OrvelCommands::fullScreenToggled);
        m_commands.run(u"quit"_s);
        m_commands.run(u"fullScreen"_s);
        QCOMPARE(quit.count(), 1);
        QCOMPARE(fullScreen.count(), 1);

        m_commands.run(u"palette"_s);
        m_commands.run(u"shortcuts"_s);
        m_commands.run(u"sidebar"_s);
        QVERIFY(m_ui.isSearchPresented());
        QVERIFY(m_ui.isShortcutsPresented());
        QVERIFY(!m_ui.isSidebarVisible());
        m_commands.run(u"sidebar"_s);
        QVERIFY(m_ui.isSidebarVisible());

        m_commands.run(u"unknown"_s);
        QCOMPARE(m_ui.selection(), Destination());
    }
};

QTEST_MAIN(OrvelCommandsTest)
#include "tst_orvelcommands.moc"
