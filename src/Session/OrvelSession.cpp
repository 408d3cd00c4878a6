#include "Session/OrvelSession.h"

namespace
{
constexpr char sessionProperty[] = "orvelSession";
}

OrvelSession::OrvelSession(WorkspaceStore *store, UIState *ui, UpdateService *updates, const Machine &machine)
    : m_store(store),
      m_ui(ui),
      m_updates(updates),
      m_search(*store),
      m_undo(store, ui),
      m_visits(store, ui),
      m_preferences(machine.preferences ? *machine.preferences : m_ownPreferences),
      m_focus(*store, m_preferences, machine),
      m_settings(ShownSettings::of(store->settings()))
{
    connect(store, &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
        if (!changes.settings)
            return;
        auto next = ShownSettings::of(m_store->settings());
        if (std::exchange(m_settings, next) != next)
            emit settingsChanged();
    });
}

QDateTime OrvelSession::now() const
{
    return toDateTime(m_store->now(), m_store->clock().timeZone());
}

void OrvelSession::provideTo(QQmlEngine &engine)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    engine.setProperty(sessionProperty, QVariant::fromValue(this));
}

OrvelSession *OrvelSession::create(QQmlEngine *engine, QJSEngine *)
{
    auto *const session = engine->property(sessionProperty).value<OrvelSession *>();
    Q_ASSERT_X(session, "OrvelSession", "provideTo has to come before the first screen");
    return session;
}
