#include "DesignSystem/SystemAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace
{

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");

bool paletteIsDark()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Older portals wrap the value twice.
uint number(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

} // namespace

SystemAppearance::SystemAppearance(const QDBusConnection &bus, QObject *parent)
    : QObject(parent), m_dark(paletteIsDark())
{
    qApp->installEventFilter(this);
    if (bus.isConnected())
        askPortal(bus);
}

std::optional<bool> SystemAppearance::preference(uint colorScheme)
{
    if (colorScheme == 1)
        return true;
    if (colorScheme == 2)
        return false;
    return std::nullopt;
}

void SystemAppearance::askPortal(const QDBusConnection &bus)
{
    QDBusConnection connection = bus;
    // The connection finds the slot only once the type of its argument is known by name.
    qRegisterMetaType<QDBusVariant>();
    connection.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                       SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question.setArguments({appearanceGroup, colorSchemeKey});
    auto *answer = new QDBusPendingCallWatcher(connection.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            portalSettingChanged(appearanceGroup, colorSchemeKey, reply.value());
    });
}

void SystemAppearance::portalSettingChanged(const QString &group, const QString &key,
                                            const QDBusVariant &value)
{
    if (group != appearanceGroup || key != colorSchemeKey)
        return;
    m_portal = preference(number(value.variant()));
    update();
}

void SystemAppearance::update()
{
    const bool dark = m_portal.value_or(paletteIsDark());
    if (dark == m_dark)
        return;
    m_dark = dark;
    emit changed(dark);
}

bool SystemAppearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        update();
    return QObject::eventFilter(watched, event);
}
