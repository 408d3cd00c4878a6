#include "Session/DesktopNotifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace
{
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString desktopEntry = QStringLiteral("com.orvel.workspace");
// What a click on the notification itself stands for.
const QString defaultAction = QStringLiteral("default");
constexpr int expiresByDesktop = -1;
} // namespace

DesktopNotifications::DesktopNotifications(std::function<QDBusConnection()> bus, QObject *parent)
    : QObject(parent), m_getBus(std::move(bus))
{
}

bool DesktopNotifications::connectToBus()
{
    if (m_bus)
        return m_bus->isConnected();
    m_bus = m_getBus();
    m_bus->connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                   SLOT(actionInvoked(uint, QString)));
    m_bus->connect(service, path, service, QStringLiteral("ActivationToken"), this,
                   SLOT(tokenGiven(uint, QString)));
    return m_bus->isConnected();
}

void DesktopNotifications::show(const QString &title, const QString &text)
{
    if (!connectToBus())
        return;
    // Servers read some marks in the text; the title is plain.
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    message.setArguments({QStringLiteral("Orvel"), m_id, desktopEntry, title, text.toHtmlEscaped(),
                          QStringList{defaultAction, tr("Show Orvel")},
                          QVariantMap{{QStringLiteral("desktop-entry"), desktopEntry},
                                      {QStringLiteral("sound-name"), QStringLiteral("complete")},
                                      {QStringLiteral("category"), QStringLiteral("x-orvel.focus")}},
                          expiresByDesktop});
    auto *const watcher = new QDBusPendingCallWatcher(m_bus->asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<uint> reply = *call;
        if (reply.isValid())
            m_id = reply.value();
    });
}

void DesktopNotifications::tokenGiven(uint id, const QString &token)
{
    if (id == m_id)
        m_token = token.toUtf8();
}

void DesktopNotifications::actionInvoked(uint id, const QString &action)
{
    if (id == m_id && action == defaultAction)
        emit activated(std::exchange(m_token, {}));
}
