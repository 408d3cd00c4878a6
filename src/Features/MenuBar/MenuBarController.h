#pragma once

#include "Features/MenuBar/StatusItem.h"
#include "Session/OrvelSession.h"

#include <QTimer>
#include <QWindow>

/// The icon of the program on the desktop's panel. It is there while the user wants it, which the preference
/// `orvel.menuBarEnabled` says; one that was never written means yes.
class MenuBarController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OrvelSession *session READ session WRITE setSession NOTIFY sessionChanged REQUIRED FINAL)

public:
    static constexpr char enabledKey[] = "orvel.menuBarEnabled";

    explicit MenuBarController(QObject *parent = nullptr);

    OrvelSession *session() const { return m_session; }
    void setSession(OrvelSession *session);
    /// The bus that the icon is shown on; that of the user's session unless set before the session is.
    void setBus(std::function<QDBusConnection()> bus) { m_bus = std::move(bus); }

    bool isEnabled() const;
    /// Shows or takes away the icon.
    void applyEnabledState();
    /// Looks twice within the next seconds whether the icon is there: a panel may come up later than the
    /// program.
    void scheduleReassert();

    /// Where the panel of this size opens after a click at the place.
    Q_INVOKABLE QPoint place(const QPoint &icon, int width, int height) const;
    Q_INVOKABLE void bringToFront(QWindow *window) const;

signals:
    void sessionChanged();
    /// The user has clicked the icon, at this place of the screen; null where the desktop does not tell.
    void toggleRequested(const QPoint &place);
    /// The main window is to come to the front.
    void openRequested();
    void quitRequested();
    /// The panel is to close.
    void dismissRequested();

private:
    void makeItem();
    QList<StatusMenu::Entry> menu();
    /// In whole minutes, so that neither the program nor the panel is woken each second for it.
    void showRemainingTime();
    void followFocus();

    OrvelSession *m_session = nullptr;
    std::function<QDBusConnection()> m_bus = &QDBusConnection::sessionBus;
    std::unique_ptr<StatusItem> m_item;
    bool m_wasFocusing = false;
    std::array<QTimer, 2> m_reasserts;
    /// Until the next minute of a session.
    QTimer m_nextMinute{this};
};
