#pragma once

#include "Foundation/CoalescedCall.h"
#include "Session/OrvelSession.h"

#include <bitset>

/// Base of the view models of screens. It follows the kinds of record that the screen shows and has it
/// refreshed at most once a turn of the event loop, and only while it is shown; what changed in the meantime
/// is kept for it.
class ViewModel : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(OrvelSession *session READ session WRITE setSession NOTIFY sessionChanged REQUIRED FINAL)
    /// Whether the screen is shown.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)

public:
    explicit ViewModel(QObject *parent = nullptr);

    OrvelSession *session() const { return m_session; }
    /// Set once; the first refresh happens at once.
    void setSession(OrvelSession *session);
    bool isActive() const { return m_active; }
    void setActive(bool active);

    /// Refreshes now what would be refreshed at the end of the turn.
    void flush() { m_refresh.flush(); }

signals:
    void sessionChanged();
    void activeChanged();

protected:
    /// Has the screen refreshed when records of these kinds change. For use in the constructor.
    template <typename... Record>
    void follow()
    {
        (m_follows.set(RecordKinds::indexOf<Record>), ...);
    }
    void followSettings() { m_followsSettings = true; }
    /// Has everything refreshed on a new day and in another time zone.
    void followDays() { m_followsDays = true; }

    /// The session is there; called before the first refresh.
    virtual void start() {}
    /// Shows what is there now.
    /// @param changes what has changed since the last refresh; everything the first time and on a new day
    virtual void refresh(const ChangeSet &changes) = 0;
    /// Shows where a step was undone; false if that is not in this screen.
    virtual bool reveal(const UndoPlace &) { return false; }

    /// Has the screen refreshed at the end of the turn.
    void requestRefresh() { m_refresh.request(); }
    /// The same, with everything taken as changed.
    void requestWholeRefresh();

    /// These may be used once the session is there.
    WorkspaceStore &store() const { return *m_session->store(); }
    UIState &ui() const { return *m_session->ui(); }
    const Clock &clock() const { return store().clock(); }

private:
    void storeChanged(const ChangeSet &changes);
    void refreshNow();
    void revealRestored();

    OrvelSession *m_session = nullptr;
    bool m_active = true;
    std::bitset<RecordKinds::count> m_follows;
    bool m_followsSettings = false;
    bool m_followsDays = false;
    ChangeSet m_changes;
    CoalescedCall m_refresh;
    CoalescedCall m_reveal;
};
