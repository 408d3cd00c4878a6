#include "Session/ViewModel.h"

ViewModel::ViewModel(QObject *parent)
    : QObject(parent), m_refresh([this] { refreshNow(); }), m_reveal([this] { revealRestored(); })
{
}

void ViewModel::setSession(OrvelSession *session)
{
    if (m_session == session)
        return;
    Q_ASSERT_X(!m_session, "ViewModel", "a view model belongs to one session");
    m_session = session;
    connect(&store(), &WorkspaceStore::changed, this, &ViewModel::storeChanged);
    if (m_followsDays)
        connect(&clock(), &Clock::dayChanged, this, &ViewModel::requestWholeRefresh);
    connect(session->undo(), &UndoController::restoredChanged, &m_reveal, &CoalescedCall::request);
    emit sessionChanged();
    start();
    m_changes = ChangeSet::reloaded();
    refreshNow();
    // The views of a screen that was made to show where a step was undone come to be after this.
    m_reveal.request();
}

void ViewModel::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    emit activeChanged();
    refreshNow();
}

void ViewModel::requestWholeRefresh()
{
    m_changes = ChangeSet::reloaded();
    m_refresh.request();
}

void ViewModel::storeChanged(const ChangeSet &changes)
{
    if (!(changes.touchesAny(m_follows) || (m_followsSettings && changes.settings)))
        return;
    m_changes.add(changes);
    m_refresh.request();
}

void ViewModel::refreshNow()
{
    if (!m_active || !m_session)
        return;
    refresh(std::exchange(m_changes, {}));
}

void ViewModel::revealRestored()
{
    if (!m_session || !m_active)
        return;
    UndoController &undo = *m_session->undo();
    m_refresh.flush();
    if (undo.restored() && undo.restored()->destination == ui().selection() && reveal(*undo.restored()))
        undo.takeRestored();
}
