#include "DesignSystem/SystemAppearance.h"

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

SystemAppearance::SystemAppearance(QObject *parent) : QObject(parent), m_dark(paletteIsDark())
{
    qApp->installEventFilter(this);
}

void SystemAppearance::followPortal(const std::function<QDBusConnection()> &bus)
{
    // The connection finds the slot only once the type of its argument is known by name.
    qRegisterMetaType<QDBusVariant>();
    m_background.start([this, bus] {
        QDBusConnection connection = bus();
        if (!connection.isConnected())
            return;
        // This asks the bus who the portal is, and waits for the answer.
        connection.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                           SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
        QMetaObject::invokeMethod(this, [this, connection] { askPortal(connection); }, Qt::QueuedConnection);
    });
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
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question.setArguments({appearanceGroup, colorSchemeKey});
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
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
