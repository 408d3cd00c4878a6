#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

/// Tells the user something by the desktop's own notifications, which also show where the window is not in
/// front and which the desktop lets the user silence. Without a notification service nothing is shown.
class DesktopNotifications : public QObject
{
    Q_OBJECT

public:
    /// @param bus called when something is first told, since connecting to a bus takes time
    explicit DesktopNotifications(std::function<QDBusConnection()> bus, QObject *parent = nullptr);

    /// Takes the place of the last one, with a soft sound.
    void show(const QString &title, const QString &text);

signals:
    /// The user has clicked a notification.
    /// @param token lets the window come to the front; empty where the desktop gives none
    void activated(const QByteArray &token);

private slots:
    void actionInvoked(uint id, const QString &action);
    void tokenGiven(uint id, const QString &token);

private:
    bool connectToBus();

    std::function<QDBusConnection()> m_getBus;
    std::optional<QDBusConnection> m_bus;
    uint m_id = 0;
    QByteArray m_token;
};
