#include "Features/Decks/IdleInhibitor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace
{
QDBusMessage request(const QString &method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                          QStringLiteral("/org/freedesktop/ScreenSaver"),
                                          QStringLiteral("org.freedesktop.ScreenSaver"), method);
}

void releaseCookie(uint cookie)
{
    QDBusMessage message = request(QStringLiteral("UnInhibit"));
    message << cookie;
    QDBusConnection::sessionBus().send(message);
}
} // namespace

IdleInhibitor::~IdleInhibitor()
{
    release();
}

void IdleInhibitor::setActive(bool active)
{
    if (m_isActive == active)
        return;
    m_isActive = active;
    if (active)
        inhibit();
    else
        release();
    emit activeChanged();
}

void IdleInhibitor::inhibit()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage message = request(QStringLiteral("Inhibit"));
    message << QCoreApplication::applicationName() << m_reason;
    auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<uint> reply = *call;
        if (reply.isError())
            return;
        // It may have become unwanted before the answer came.
        if (m_isActive && m_cookie == 0)
            m_cookie = reply.value();
        else
            releaseCookie(reply.value());
    });
}

void IdleInhibitor::release()
{
    if (const uint cookie = std::exchange(m_cookie, 0); cookie != 0)
        releaseCookie(cookie);
}
