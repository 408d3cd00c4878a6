#pragma once

#include "Session/CommandSource.h"
#include "Session/OrvelSession.h"
#include "Session/PageActions.h"

#include <QQuickItem>

/// One entry of the menu bar.
class OrvelCommand : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title NOTIFY changed FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled NOTIFY changed FINAL)
    Q_PROPERTY(QStringList keys MEMBER keys CONSTANT FINAL)
    Q_PROPERTY(QString keysText READ keysText CONSTANT FINAL)
    Q_PROPERTY(bool startsGroup MEMBER startsGroup CONSTANT FINAL)
    Q_PROPERTY(bool isBound MEMBER isBound CONSTANT FINAL)

public:
    using QObject::QObject;

    QString id;
    QString title;
    bool enabled = true;
    /// Key sequences in portable form, such as "Ctrl+N"; the menu shows the first.
    QStringList keys;
    /// Whether a line stands above the entry.
    bool startsGroup = false;
    /// Whether the window binds the keys; those of editing are the text field's own.
    bool isBound = true;

    /// The first keys as a user reads them on this machine.
    QString keysText() const;
    void show(const QString &newTitle, bool isEnabled);

signals:
    void changed();
};

/// One menu of the menu bar.
struct OrvelMenu {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QList<OrvelCommand *> commands MEMBER commands FINAL)

public:
    /// "&" stands before the letter that opens it.
    QString title;
    QList<OrvelCommand *> commands;
};

/// The commands of the menu bar and their keys.
class OrvelCommands : public QObject, public CommandSource
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OrvelSession *session READ session WRITE setSession NOTIFY sessionChanged REQUIRED FINAL)
    Q_PROPERTY(QList<OrvelMenu> menus READ menus CONSTANT FINAL)
    /// The commands of all menus.
    Q_PROPERTY(QQmlListProperty<OrvelCommand> commands READ commandList CONSTANT FINAL)

public:
    explicit OrvelCommands(QObject *parent = nullptr);

    ~OrvelCommands() override;

    OrvelSession *session() const { return m_session; }
    void setSession(OrvelSession *session);
    const QList<OrvelMenu> &menus() const { return m_menus; }
    const QList<OrvelCommand *> &commands() const { return m_commands; }
    QQmlListProperty<OrvelCommand> commandList() { return {this, &m_commands}; }

    /// Does what the command with this id is for; an unknown id does nothing, and before the onboarding is
    /// done neither does anything that belongs to the workspace.
    /// @param focusItem what the Edit menu acts on if it is a text field or names an `editTarget`: what had
    /// the focus before the menu
    Q_INVOKABLE void run(const QString &id, QQuickItem *focusItem = nullptr);
    /// Enables what can be done now.
    Q_INVOKABLE void prepare(QQuickItem *focusItem = nullptr);

    QList<NamedCommand> namedCommands() override;
    void runCommand(const QString &id) override { run(id); }

signals:
    void sessionChanged();
    void fullScreenToggled();
    void quitRequested();
    void markdownImportRequested();
    void markdownExportRequested();

private:
    struct Entry;
    static const QList<Entry> &table();

    WorkspaceStore &store() { return *m_session->store(); }
    UIState &ui() { return *m_session->ui(); }

    void newPage() { PageActions::create(store(), ui(), PageKind::page); }
    void newNote() { PageActions::create(store(), ui(), PageKind::note); }
    void newTask();
    void undo() { m_session->undo()->undo(); }
    void redo() { m_session->undo()->redo(); }
    void find();
    void replace();
    void findNext();
    void findPrevious();
    bool checksSpelling() const;
    void toggleSpelling();
    void goBack() { m_session->visits()->back(); }
    void goForward() { m_session->visits()->forward(); }
    void cycleNavigation();
    void cycleAppearance();
    void cycleAccent();
    void shuffleQuote();
    void toggleSidebar() { ui().setSidebarVisible(!ui().isSidebarVisible()); }
    void presentSearch() { ui().setSearchPresented(true); }
    void presentShortcuts() { ui().setShortcutsPresented(true); }
    void checkForUpdates() { m_session->updates()->check(true); }

    QPointer<OrvelSession> m_session;
    QList<OrvelMenu> m_menus;
    QList<OrvelCommand *> m_commands;
};
