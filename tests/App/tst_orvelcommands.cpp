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
    OrvelSession m_session{&m_store, &m_ui, &m_updates};
    OrvelCommands m_commands;

    OrvelCommand *command(const QString &id) const
    {
        const auto all = m_commands.commands();
        return *std::ranges::find(all, id, [](const OrvelCommand *each) { return each->id; });
    }

private slots:
    void initTestCase() { m_commands.setSession(&m_session); }
    void init()
    {
        m_store.resetEverything(false);
        m_store.changeSettings([](AppSettings &settings) { settings.hasCompletedOnboarding = true; });
        m_ui.setSelection(Destination());
    }

    void menusStandInTheirOrder()
    {
        QStringList menus;
        for (const OrvelMenu &menu : m_commands.menus()) {
            QStringList lines;
            for (const OrvelCommand *command : menu.commands)
                lines.append((command->startsGroup ? u"| "_s : QString()) + command->title);
            menus.append(menu.title + u": "_s + lines.join(u' '));
        }
        QCOMPARE(
            menus,
            (QStringList{u"&File: New Page New Note New Task | Import Markdown… Export All as "
                         "Markdown… | Settings… | Check for Updates… | Quit"_s,
                         u"&Edit: Undo Redo | Cut Copy Paste | Select All | Find… Replace… Find Next Find "
                         "Previous | Stop Checking Spelling"_s,
                         u"&Navigate: Dashboard Today Focus Tasks Calendar Projects Notes Databases Habits "
                         "Insights Relax | Command Palette | Back Forward"_s,
                         u"&View: Cycle Navigation Style Cycle Appearance Cycle Accent Shuffle Daily Quote "
                         "Keyboard Shortcuts | Toggle Sidebar | Full Screen"_s}));
    }

    void noKeyAndNoIdIsGivenTwice()
    {
        QSet<QString> given;
        for (const OrvelCommand *command : m_commands.commands()) {
            QVERIFY2(!given.contains(command->id), qPrintable(command->id));
            given.insert(command->id);
            for (const QString &keys : command->keys) {
                const QKeySequence sequence(keys, QKeySequence::PortableText);
                QVERIFY2(!given.contains(keys) && sequence.count() == 1 &&
                             sequence[0].key() != Qt::Key_unknown,
                         qPrintable(keys));
                given.insert(keys);
            }
        }
    }

    void theKeysShownAreTheKeysBound()
    {
        for (const ShortcutItem &shown : OVShortcuts::all())
            QCOMPARE(command(shown.id)->keys, QStringList{shown.portableKeys()});
        QCOMPARE(OVShortcuts::all().size(), 22);
    }

    void editingNamesTheStepAndActsOnTheField()
    {
        m_commands.prepare();
        QVERIFY(!command(u"copy"_s)->enabled && !command(u"paste"_s)->enabled);
        m_commands.run(u"newTask"_s);
        QVERIFY(command(u"undo"_s)->enabled && !command(u"redo"_s)->enabled);
        QVERIFY(command(u"undo"_s)->title.startsWith(u"Undo "));
        m_commands.run(u"undo"_s);
        QVERIFY(m_store.tasks().isEmpty());
        QVERIFY(command(u"redo"_s)->enabled);
        m_commands.run(u"redo"_s);
        QCOMPARE(m_store.tasks().size(), 1);
    }

    void thePaletteIsOfferedWhatCanBeDone()
    {
        const auto offered = [this] {
            QStringList ids;
            for (const NamedCommand &command : m_commands.namedCommands())
                ids.append(command.id);
            return ids;
        };
        const QStringList first = offered();
        for (const QString &never :
             {u"copy"_s, u"selectAll"_s, u"palette"_s, u"find"_s, u"undo"_s, u"forward"_s})
            QVERIFY2(!first.contains(never), qPrintable(never));
        QVERIFY(first.contains(u"newPage"_s) && first.contains(u"sidebar"_s));
        m_commands.runCommand(u"newTask"_s);
        QVERIFY(offered().contains(u"undo"_s) && offered().contains(u"back"_s));
        m_commands.runCommand(u"back"_s);
        QCOMPARE(m_ui.selection(), Destination());
        QVERIFY(offered().contains(u"forward"_s));
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
        auto commands = m_commands.menus().at(2).commands;
        // The palette, back and forward.
        commands.resize(commands.size() - 3);
        commands.append(command(u"settings"_s));
        for (const OrvelCommand *command : commands) {
            m_commands.run(command->id);
            QCOMPARE(m_ui.selection().text(), command->id);
        }
    }

    void spellingIsSwitched()
    {
        m_commands.run(u"spelling"_s);
        QCOMPARE(command(u"spelling"_s)->title, u"Check Spelling"_s);
        m_commands.run(u"spelling"_s);
        QCOMPARE(command(u"spelling"_s)->title, u"Stop Checking Spelling"_s);
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
        for (const OrvelCommand *command : m_commands.commands())
            m_commands.run(command->id);
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
