#include "App/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>

namespace
{
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");
} // namespace

DesktopAppearance::DesktopAppearance(QObject *parent)
    : QObject(parent), m_palette(looksDark(QGuiApplication::palette()))
{
    qApp->installEventFilter(this);
    askPortal();
}

std::optional<bool> DesktopAppearance::preference(const QVariant &colorScheme)
{
    QVariant value = colorScheme;
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    switch (value.toUInt()) {
    case 1:
        return true;
    case 2:
        return false;
    default:
        return std::nullopt;
    }
}

bool DesktopAppearance::looksDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool DesktopAppearance::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        set(m_portal, looksDark(QGuiApplication::palette()));
    return QObject::eventFilter(watched, event);
}

void DesktopAppearance::portalSettingChanged(const QString &group, const QString &key,
                                             const QDBusVariant &value)
{
    if (group == appearanceGroup && key == colorSchemeKey)
        set(preference(value.variant()), m_palette);
}

void DesktopAppearance::askPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << appearanceGroup << colorSchemeKey;
    auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            set(preference(reply.value().variant()), m_palette);
    });
}

void DesktopAppearance::set(std::optional<bool> portal, bool palette)
{
    const bool before = isDark();
    m_portal = portal;
    m_palette = palette;
    if (isDark() != before)
        emit darkChanged();
}
