#include "App/OrvelCommands.h"

#include "DesignSystem/KeyText.h"
#include "Features/Pages/SpellChecker.h"
#include "Store/TaskOperations.h"
#include "Support/OVQuotes.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{
/// What a text field does by itself: a method of it, and the property that says whether it can.
struct TextEdit {
    const char *method;
    const char *condition;
};

/// What edits for this item: the item itself, or what a list names as its `editTarget`, such as the cells of
/// a table.
QObject *editTarget(QQuickItem *focusItem)
{
    auto *const target = focusItem ? focusItem->property("editTarget").value<QObject *>() : nullptr;
    return target ? target : focusItem;
}

bool canEdit(const QObject *target, const TextEdit &edit)
{
    if (!target || !target->property("selectedText").isValid())
        return false;
    const QVariant condition = target->property(edit.condition);
    // As a truth value the text "0" would be none.
    const bool isMet =
        condition.typeId() == QMetaType::QString ? !condition.toString().isEmpty() : condition.toBool();
    const bool writes = qstrcmp(edit.method, "copy") != 0 && qstrcmp(edit.method, "selectAll") != 0;
    return isMet && !(writes && target->property("readOnly").toBool());
}

void editText(QObject *target, const TextEdit &edit)
{
    if (canEdit(target, edit))
        QMetaObject::invokeMethod(target, edit.method);
}
} // namespace

/// One row of the table. The action is a member, the place to go to, or what a text field does by itself.
struct OrvelCommands::Entry {
    enum class Group { same, next };
    /// Where the command can be given: in the workspace only, or before it is entered as well.
    enum class Reach { workspace, window };
    /// Who binds the keys: the window, or the screen that can do it.
    enum class Keys { window, screen };

    const char *menu;
    const char *id;
    const char *title;
    std::array<const char *, 2> keys;
    std::variant<void (OrvelCommands::*)(), Destination::Kind, TextEdit> action;
    Group group = Group::same;
    Reach reach = Reach::workspace;
    Keys bound = Keys::window;
};

// The whole menu bar in its order. A command whose service is still to come joins here, in its place.
const QList<OrvelCommands::Entry> &OrvelCommands::table()
{
    using Kind = Destination::Kind;
    using Self = OrvelCommands;
    using enum Entry::Group;
    using enum Entry::Reach;
    static constexpr auto ofScreen = Entry::Keys::screen;
    static constexpr auto file = QT_TR_NOOP("&File");
    static constexpr auto edit = QT_TR_NOOP("&Edit");
    static constexpr auto navigate = QT_TR_NOOP("&Navigate");
    static constexpr auto view = QT_TR_NOOP("&View");
    static const QList<Entry> entries = {
        {file, "newPage", QT_TR_NOOP("New Page"), {"Ctrl+N"}, &Self::newPage},
        {file, "newNote", QT_TR_NOOP("New Note"), {"Ctrl+Shift+N"}, &Self::newNote},
        {file, "newTask", QT_TR_NOOP("New Task"), {"Ctrl+Shift+K"}, &Self::newTask},
        {file, "importMarkdown", QT_TR_NOOP("Import Markdown…"), {}, &Self::markdownImportRequested, next},
        {file, "exportMarkdown", QT_TR_NOOP("Export All as Markdown…"), {}, &Self::markdownExportRequested},
        {file, "settings", QT_TR_NOOP("Settings…"), {"Ctrl+,"}, Kind::settings, next},
        {file, "updates", QT_TR_NOOP("Check for Updates…"), {}, &Self::checkForUpdates, next},
        {file, "quit", QT_TR_NOOP("Quit"), {"Ctrl+Q"}, &Self::quitRequested, next, window},
        {edit, "undo", QT_TR_NOOP("Undo"), {"Ctrl+Z"}, &Self::undo},
        {edit, "redo", QT_TR_NOOP("Redo"), {"Ctrl+Shift+Z", "Ctrl+Y"}, &Self::redo},
        {edit, "cut", QT_TR_NOOP("Cut"), {"Ctrl+X"}, TextEdit{"cut", "selectedText"}, next},
        {edit, "copy", QT_TR_NOOP("Copy"), {"Ctrl+C"}, TextEdit{"copy", "selectedText"}},
        {edit, "paste", QT_TR_NOOP("Paste"), {"Ctrl+V"}, TextEdit{"paste", "canPaste"}},
        {edit, "selectAll", QT_TR_NOOP("Select All"), {"Ctrl+A"}, TextEdit{"selectAll", "length"}, next},
        {edit, "find", QT_TR_NOOP("Find…"), {"Ctrl+F"}, &Self::find, next, workspace, ofScreen},
        {edit, "replace", QT_TR_NOOP("Replace…"), {"Ctrl+H"}, &Self::replace, same, workspace, ofScreen},
        {edit, "findNext", QT_TR_NOOP("Find Next"), {"Ctrl+G"}, &Self::findNext, same, workspace, ofScreen},
        {edit,
         "findPrevious",
         QT_TR_NOOP("Find Previous"),
         {"Ctrl+Shift+G"},
         &Self::findPrevious,
         same,
         workspace,
         ofScreen},
        {edit, "spelling", QT_TR_NOOP("Check Spelling"), {}, &Self::toggleSpelling, next},
        {navigate, "dashboard", QT_TR_NOOP("Dashboard"), {"Ctrl+1"}, Kind::dashboard},
        {navigate, "today", QT_TR_NOOP("Today"), {"Ctrl+2"}, Kind::today},
        {navigate, "focus", QT_TR_NOOP("Focus"), {"Ctrl+3"}, Kind::focus},
        {navigate, "tasks", QT_TR_NOOP("Tasks"), {"Ctrl+4"}, Kind::tasks},
        {navigate, "calendar", QT_TR_NOOP("Calendar"), {"Ctrl+5"}, Kind::calendar},
        {navigate, "projects", QT_TR_NOOP("Projects"), {"Ctrl+6"}, Kind::projects},
        {navigate, "notes", QT_TR_NOOP("Notes"), {"Ctrl+7"}, Kind::notes},
        {navigate, "databases", QT_TR_NOOP("Databases"), {"Ctrl+8"}, Kind::databases},
        {navigate, "habits", QT_TR_NOOP("Habits"), {"Ctrl+Shift+H"}, Kind::habits},
        {navigate, "insights", QT_TR_NOOP("Insights"), {"Ctrl+Shift+I"}, Kind::insights},
        {navigate, "relax", QT_TR_NOOP("Relax"), {"Ctrl+Shift+R"}, Kind::relax},
        {navigate, "palette", QT_TR_NOOP("Command Palette"), {"Ctrl+K"}, &Self::presentSearch, next},
        {navigate, "back", QT_TR_NOOP("Back"), {"Alt+Left", "Back"}, &Self::goBack, next},
        {navigate, "forward", QT_TR_NOOP("Forward"), {"Alt+Right", "Forward"}, &Self::goForward},
        {view, "cycleNav", QT_TR_NOOP("Cycle Navigation Style"), {"Ctrl+Shift+D"}, &Self::cycleNavigation},
        {view, "appearance", QT_TR_NOOP("Cycle Appearance"), {"Ctrl+Shift+L"}, &Self::cycleAppearance},
        {view, "theme", QT_TR_NOOP("Cycle Accent"), {"Ctrl+Shift+T"}, &Self::cycleAccent},
        {view, "shuffleQuote", QT_TR_NOOP("Shuffle Daily Quote"), {"Ctrl+Shift+Q"}, &Self::shuffleQuote},
        {view, "shortcuts", QT_TR_NOOP("Keyboard Shortcuts"), {"Ctrl+/"}, &Self::presentShortcuts},
        {view, "sidebar", QT_TR_NOOP("Toggle Sidebar"), {"Ctrl+Shift+S"}, &Self::toggleSidebar, next},
        {view, "fullScreen", QT_TR_NOOP("Full Screen"), {"F11"}, &Self::fullScreenToggled, next, window},
    };
    return entries;
}

OrvelCommands::OrvelCommands(QObject *parent) : QObject(parent)
{
    for (const Entry &entry : table()) {
        if (m_menus.isEmpty() || m_menus.last().title != tr(entry.menu))
            m_menus.append({tr(entry.menu), {}});
        auto *const command = new OrvelCommand(this);
        command->id = QLatin1String(entry.id);
        command->title = tr(entry.title);
        for (const char *keys : entry.keys)
            if (keys)
                command->keys.append(QLatin1String(keys));
        command->startsGroup = entry.group == Entry::Group::next;
        command->isBound =
            !std::holds_alternative<TextEdit>(entry.action) && entry.bound == Entry::Keys::window;
        m_menus.last().commands.append(command);
        m_commands.append(command);
    }
}

OrvelCommands::~OrvelCommands()
{
    if (m_session && m_session->commands() == this)
        m_session->setCommands(nullptr);
}

void OrvelCommands::setSession(OrvelSession *session)
{
    if (m_session == session)
        return;
    m_session = session;
    session->setCommands(this);
    connect(session->undo(), &UndoController::changed, this, [this] { prepare(); });
    prepare();
    emit sessionChanged();
}

void OrvelCommands::prepare(QQuickItem *focusItem)
{
    for (qsizetype i = 0; i < m_commands.size(); ++i) {
        OrvelCommand &command = *m_commands.at(i);
        if (const auto *const edit = std::get_if<TextEdit>(&table().at(i).action))
            command.show(command.title, canEdit(editTarget(focusItem), *edit));
        else if (command.id == u"undo")
            command.show(m_session->undo()->undoText(), m_session->undo()->canUndo());
        else if (command.id == u"redo")
            command.show(m_session->undo()->redoText(), m_session->undo()->canRedo());
        else if (command.id == u"spelling")
            command.show(checksSpelling() ? tr("Stop Checking Spelling") : tr("Check Spelling"), true);
        else if (command.id == u"back")
            command.show(command.title, m_session->visits()->canGoBack());
        else if (command.id == u"forward")
            command.show(command.title, m_session->visits()->canGoForward());
        else if (command.id == u"replace")
            command.show(command.title, m_session->finder() && m_session->finder()->canReplace());
        else if (table().at(i).bound == Entry::Keys::screen)
            command.show(command.title, m_session->finder());
    }
}

void OrvelCommands::run(const QString &id, QQuickItem *focusItem)
{
    const auto &entries = table();
    const auto found = std::ranges::find(entries, id, &Entry::id);
    if (found == entries.end())
        return;
    if (found->reach == Entry::Reach::workspace && !store().settings().hasCompletedOnboarding)
        return;
    if (const auto *const place = std::get_if<Destination::Kind>(&found->action))
        ui().setSelection(Destination::to(*place));
    else if (const auto *const edit = std::get_if<TextEdit>(&found->action))
        editText(editTarget(focusItem), *edit);
    else
        (this->*std::get<0>(found->action))();
}

QList<NamedCommand> OrvelCommands::namedCommands()
{
    prepare();
    QList<NamedCommand> named;
    for (qsizetype i = 0; i < m_commands.size(); ++i) {
        const OrvelCommand &command = *m_commands.at(i);
        if (command.enabled && !std::holds_alternative<TextEdit>(table().at(i).action) &&
            command.id != u"palette")
            named.append({command.id, command.title, command.keysText()});
    }
    return named;
}

void OrvelCommands::find()
{
    if (TextFinder *const finder = m_session->finder())
        finder->open();
}

void OrvelCommands::replace()
{
    if (TextFinder *const finder = m_session->finder())
        finder->openReplace();
}

void OrvelCommands::findNext()
{
    if (TextFinder *const finder = m_session->finder())
        finder->next();
}

void OrvelCommands::findPrevious()
{
    if (TextFinder *const finder = m_session->finder())
        finder->previous();
}

bool OrvelCommands::checksSpelling() const
{
    return m_session->preferences().value(SpellChecker::enabledKey, true).toBool();
}

void OrvelCommands::toggleSpelling()
{
    m_session->preferences().setValue(SpellChecker::enabledKey, !checksSpelling());
    prepare();
}

void OrvelCommands::newTask()
{
    TaskOperations::create(store(), tr("Untitled task"), TaskPriority::medium, store().now());
    ui().setSelection(Destination::to(Destination::Kind::tasks));
}

void OrvelCommands::cycleNavigation()
{
    store().changeSettings(
        [](AppSettings &settings) { settings.theme.navigation = nextCase(settings.theme.navigation); });
}

void OrvelCommands::cycleAppearance()
{
    store().changeSettings(
        [](AppSettings &settings) { settings.appearance = nextCase(settings.appearance); });
}

void OrvelCommands::cycleAccent()
{
    store().changeSettings(
        [](AppSettings &settings) { settings.theme.accent = nextCase(settings.theme.accent); });
}

void OrvelCommands::shuffleQuote()
{
    ui().setRandomQuote(OVQuotes::random(ui().randomQuote(), *QRandomGenerator::global()));
}

QString OrvelCommand::keysText() const
{
    return keys.isEmpty() ? QString() : KeyText::of(keys.first());
}

void OrvelCommand::show(const QString &newTitle, bool isEnabled)
{
    if (title == newTitle && enabled == isEnabled)
        return;
    title = newTitle;
    enabled = isEnabled;
    emit changed();
}
