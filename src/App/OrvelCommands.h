#pragma once

#include "Session/SessionTypes.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// One entry of the menu bar.
struct OrvelCommand {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString keys MEMBER keys FINAL)
    Q_PROPERTY(QString keysText MEMBER keysText FINAL)
    Q_PROPERTY(bool startsGroup MEMBER startsGroup FINAL)

public:
    QString id;
    QString title;
    /// The key sequence in portable form, such as "Ctrl+N"; empty for none.
    QString keys;
    /// The same as a person reads it on this machine.
    QString keysText;
    /// Whether a line stands above the entry.
    bool startsGroup = false;

    bool operator==(const OrvelCommand &) const = default;
};

/// One menu of the menu bar.
struct OrvelMenu {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QList<OrvelCommand> commands MEMBER commands FINAL)

public:
    /// "&" stands before the letter that opens it.
    QString title;
    QList<OrvelCommand> commands;

    bool operator==(const OrvelMenu &) const = default;
};

/// The commands of the menu bar and their keys.
class OrvelCommands : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store MEMBER m_store REQUIRED FINAL)
    Q_PROPERTY(UIState *ui MEMBER m_ui REQUIRED FINAL)
    Q_PROPERTY(UpdateService *updates MEMBER m_updates REQUIRED FINAL)
    Q_PROPERTY(QList<OrvelMenu> menus READ menus CONSTANT FINAL)
    Q_PROPERTY(QList<OrvelCommand> commands READ commands CONSTANT FINAL)

public:
    using QObject::QObject;

    static QList<OrvelMenu> menus();
    /// The commands of all menus.
    static QList<OrvelCommand> commands();

    /// Does what the command with this id is for; an unknown id does nothing, and before the onboarding is
    /// done neither does anything that belongs to the workspace.
    Q_INVOKABLE void run(const QString &id);

signals:
    void fullScreenToggled();
    void quitRequested();

private:
    struct Entry;
    static const QList<Entry> &table();

    void newPage() { open(PageKind::page); }
    void newNote() { open(PageKind::note); }
    void open(PageKind kind);
    void newTask();
    void cycleNavigation();
    void cycleAppearance();
    void cycleAccent();
    void shuffleQuote();
    void toggleSidebar();
    void presentSearch();
    void presentShortcuts();
    void checkForUpdates() { m_updates->check(true); }

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    UpdateService *m_updates = nullptr;
};
