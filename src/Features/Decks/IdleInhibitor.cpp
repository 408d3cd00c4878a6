#include "Features/Decks/IdleInhibitor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

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
    auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), QCoreApplication::instance());
    const auto take = [self = QPointer(this)](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<uint> reply = *call;
        if (reply.isError())
            return;
        // It may have become unwanted, or gone, before the answer came.
        if (self && self->m_isActive && self->m_cookie == 0)
            self->m_cookie = reply.value();
        else
            releaseCookie(reply.value());
    };
    connect(watcher, &QDBusPendingCallWatcher::finished, watcher, take);
}

void IdleInhibitor::release()
{
    if (const uint cookie = std::exchange(m_cookie, 0); cookie != 0)
        releaseCookie(cookie);
}
