#pragma once

#include "DesignSystem/TextFinder.h"
#include "Session/CommandSource.h"
#include "Session/FocusTimer.h"
#include "Session/SessionTypes.h"
#include "Session/ShownSettings.h"
#include "Session/UndoController.h"
#include "Session/VisitHistory.h"
#include "Support/Preferences.h"

#include <QPointer>
#include <QQmlEngine>

/// `Orvel` in QML: the long-lived objects of the process, as screens hand them to their view models. The
/// application makes it and provides it to its engine before the first screen is loaded; tests do the same
/// with objects of their own.
class OrvelSession : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Orvel)
    QML_SINGLETON
    Q_PROPERTY(WorkspaceStore *store READ store CONSTANT FINAL)
    Q_PROPERTY(UIState *ui READ ui CONSTANT FINAL)
    Q_PROPERTY(UpdateService *updates READ updates CONSTANT FINAL)
    Q_PROPERTY(PreparedSearch *search READ search CONSTANT FINAL)
    Q_PROPERTY(UndoController *undo READ undo CONSTANT FINAL)
    Q_PROPERTY(VisitHistory *visits READ visits CONSTANT FINAL)
    Q_PROPERTY(FocusTimer *focus READ focus CONSTANT FINAL)
    Q_PROPERTY(ShownSettings settings READ settings NOTIFY settingsChanged FINAL)

public:
    /// The objects outlive the session, and the session outlives the engine.
    /// @param updates null where no screen speaks of updates
    OrvelSession(WorkspaceStore *store, UIState *ui, UpdateService *updates = nullptr,
                 const Machine &machine = {});

    /// The present moment in the user's time zone, by the one clock.
    Q_INVOKABLE QDateTime now() const;

    void provideTo(QQmlEngine &engine);
    /// Called by the engine when QML first names `Orvel`.
    static OrvelSession *create(QQmlEngine *engine, QJSEngine *);

    WorkspaceStore *store() const { return m_store; }
    UIState *ui() const { return m_ui; }
    UpdateService *updates() const { return m_updates; }
    PreparedSearch *search() { return &m_search; }
    UndoController *undo() { return &m_undo; }
    VisitHistory *visits() { return &m_visits; }
    FocusTimer *focus() { return &m_focus; }
    Preferences &preferences() { return m_preferences; }
    const ShownSettings &settings() const { return m_settings; }

    /// The commands of the menus; null where there are none.
    CommandSource *commands() const { return m_commands; }
    /// They live longer than the session, or are taken away by null.
    void setCommands(CommandSource *commands) { m_commands = commands; }

    /// The search within the screen that is shown; null where it has none.
    TextFinder *finder() const { return m_finders.isEmpty() ? nullptr : m_finders.last().data(); }
    /// Those of all screens that are shown, the newest last; `ShownFinder` keeps them.
    QList<QPointer<TextFinder>> &shownFinders() { return m_finders; }

signals:
    void settingsChanged();

private:
    WorkspaceStore *m_store;
    UIState *m_ui;
    UpdateService *m_updates;
    PreparedSearch m_search;
    UndoController m_undo;
    VisitHistory m_visits;
    CommandSource *m_commands = nullptr;
    QList<QPointer<TextFinder>> m_finders;
    /// Where the machine gives none.
    Preferences m_ownPreferences;
    Preferences &m_preferences;
    FocusTimer m_focus;
    ShownSettings m_settings;
};
