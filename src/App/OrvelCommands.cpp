#include "App/OrvelCommands.h"

#include "DesignSystem/KeyText.h"
#include "Store/PageOperations.h"
#include "Store/TaskOperations.h"
#include "Support/OVQuotes.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

/// One row of the table. The action is a member, or the place to go to.
struct OrvelCommands::Entry {
    enum class Group { same, next };
    /// Where the command can be given: in the workspace only, or before it is entered as well.
    enum class Reach { workspace, window };

    QString menu;
    QString id;
    QString title;
    QString keys;
    std::variant<void (OrvelCommands::*)(), Destination::Kind> action;
    Group group = Group::same;
    Reach reach = Reach::workspace;
};

// The whole menu bar in its order. A command whose service is still to come joins here, in its place.
const QList<OrvelCommands::Entry> &OrvelCommands::table()
{
    using Kind = Destination::Kind;
    using enum Entry::Group;
    using enum Entry::Reach;
    static const QString file = u"&File"_s;
    static const QString navigate = u"&Navigate"_s;
    static const QString view = u"&View"_s;
    static const QList<Entry> entries = {
        {file, u"newPage"_s, u"New Page"_s, u"Ctrl+N"_s, &OrvelCommands::newPage},
        {file, u"newNote"_s, u"New Note"_s, u"Ctrl+Shift+N"_s, &OrvelCommands::newNote},
        {file, u"newTask"_s, u"New Task"_s, u"Ctrl+Shift+K"_s, &OrvelCommands::newTask},
        {file, u"settings"_s, u"Settings…"_s, u"Ctrl+,"_s, Kind::settings, next},
        {file, u"updates"_s, u"Check for Updates…"_s, {}, &OrvelCommands::checkForUpdates, next},
        {file, u"quit"_s, u"Quit"_s, u"Ctrl+Q"_s, &OrvelCommands::quitRequested, next, window},

        {navigate, u"dashboard"_s, u"Dashboard"_s, u"Ctrl+1"_s, Kind::dashboard},
        {navigate, u"today"_s, u"Today"_s, u"Ctrl+2"_s, Kind::today},
        {navigate, u"focus"_s, u"Focus"_s, u"Ctrl+3"_s, Kind::focus},
        {navigate, u"tasks"_s, u"Tasks"_s, u"Ctrl+4"_s, Kind::tasks},
        {navigate, u"calendar"_s, u"Calendar"_s, u"Ctrl+5"_s, Kind::calendar},
        {navigate, u"projects"_s, u"Projects"_s, u"Ctrl+6"_s, Kind::projects},
        {navigate, u"notes"_s, u"Notes"_s, u"Ctrl+7"_s, Kind::notes},
        {navigate, u"databases"_s, u"Databases"_s, u"Ctrl+8"_s, Kind::databases},
        {navigate, u"habits"_s, u"Habits"_s, u"Ctrl+Shift+H"_s, Kind::habits},
        {navigate, u"insights"_s, u"Insights"_s, u"Ctrl+Shift+I"_s, Kind::insights},
        {navigate, u"relax"_s, u"Relax"_s, u"Ctrl+Shift+R"_s, Kind::relax},
        {navigate, u"palette"_s, u"Command Palette"_s, u"Ctrl+K"_s, &OrvelCommands::presentSearch, next},

        {view, u"cycleNav"_s, u"Cycle Navigation Style"_s, u"Ctrl+Shift+D"_s,
         &OrvelCommands::cycleNavigation},
        {view, u"appearance"_s, u"Cycle Appearance"_s, u"Ctrl+Shift+L"_s, &OrvelCommands::cycleAppearance},
        {view, u"theme"_s, u"Cycle Accent"_s, u"Ctrl+Shift+T"_s, &OrvelCommands::cycleAccent},
        {view, u"shuffleQuote"_s, u"Shuffle Daily Quote"_s, u"Ctrl+Shift+Q"_s, &OrvelCommands::shuffleQuote},
        {view, u"shortcuts"_s, u"Keyboard Shortcuts"_s, u"Ctrl+/"_s, &OrvelCommands::presentShortcuts},
        {view, u"sidebar"_s, u"Toggle Sidebar"_s, u"Ctrl+Shift+S"_s, &OrvelCommands::toggleSidebar, next},
        {view, u"fullScreen"_s, u"Full Screen"_s, u"F11"_s, &OrvelCommands::fullScreenToggled, next, window},
    };
    return entries;
}

QList<OrvelMenu> OrvelCommands::menus()
{
    QList<OrvelMenu> menus;
    for (const Entry &entry : table()) {
        if (menus.isEmpty() || menus.last().title != entry.menu)
            menus.append({entry.menu, {}});
        menus.last().commands.append(
            {entry.id, entry.title, entry.keys, KeyText::of(entry.keys), entry.group == Entry::Group::next});
    }
    return menus;
}

QList<OrvelCommand> OrvelCommands::commands()
{
    QList<OrvelCommand> commands;
    for (const OrvelMenu &menu : menus())
        commands.append(menu.commands);
    return commands;
}

void OrvelCommands::run(const QString &id)
{
    const auto &entries = table();
    const auto found = std::ranges::find(entries, id, &Entry::id);
    if (found == entries.end())
        return;
    if (found->reach == Entry::Reach::workspace && !m_store->settings().hasCompletedOnboarding)
        return;
    if (const auto *const place = std::get_if<Destination::Kind>(&found->action))
        m_ui->setSelection(Destination::to(*place));
    else
        (this->*std::get<0>(found->action))();
}

void OrvelCommands::open(PageKind kind)
{
    m_ui->setSelection(Destination::page(PageOperations::create(*m_store, kind)));
}

void OrvelCommands::newTask()
{
    TaskOperations::create(*m_store, u"Untitled task"_s, TaskPriority::medium, m_store->clock().now());
    m_ui->setSelection(Destination::to(Destination::Kind::tasks));
}

void OrvelCommands::cycleNavigation()
{
    m_store->changeSettings(
        [](AppSettings &settings) { settings.theme.navigation = nextCase(settings.theme.navigation); });
}

void OrvelCommands::cycleAppearance()
{
    m_store->changeSettings(
        [](AppSettings &settings) { settings.appearance = nextCase(settings.appearance); });
}

void OrvelCommands::cycleAccent()
{
    m_store->changeSettings(
        [](AppSettings &settings) { settings.theme.accent = nextCase(settings.theme.accent); });
}

void OrvelCommands::shuffleQuote()
{
    m_ui->setRandomQuote(OVQuotes::random(m_ui->randomQuote(), *QRandomGenerator::global()));
}

void OrvelCommands::toggleSidebar()
{
    m_ui->setSidebarVisible(!m_ui->isSidebarVisible());
}

void OrvelCommands::presentSearch()
{
    m_ui->setSearchPresented(true);
}

void OrvelCommands::presentShortcuts()
{
    m_ui->setShortcutsPresented(true);
}
