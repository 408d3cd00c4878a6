#include "Features/MenuBar/StatusItem.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace
{
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
} // namespace

StatusItem::StatusItem(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options)), m_menu(m_options.menu)
{
    qDBusRegisterMetaType<StatusPixmap>();
    qDBusRegisterMetaType<StatusPixmaps>();
    qDBusRegisterMetaType<StatusToolTip>();
}

StatusItem::~StatusItem()
{
    disconnect();
    hide();
}

void StatusItem::show()
{
    if (std::exchange(m_isWanted, true))
        return;
    if (m_bus) {
        connectTo(*m_bus);
    } else if (!std::exchange(m_isConnecting, true)) {
        m_background.start([this, bus = m_options.bus] {
            QMetaObject::invokeMethod(
                this, [this, connection = bus()] { connectTo(connection); }, Qt::QueuedConnection);
        });
    }
}

void StatusItem::connectTo(const QDBusConnection &bus)
{
    m_isConnecting = false;
    m_bus = bus;
    if (!m_isWanted || !bus.isConnected())
        return;
    const auto exported = QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals |
                          QDBusConnection::ExportScriptableProperties;
    m_bus->registerObject(QLatin1String(path), this, exported);
    m_bus->registerObject(QLatin1String(StatusMenu::path), &m_menu, exported);
    m_bus->registerService(m_options.service);
    m_watcher = std::make_unique<QDBusServiceWatcher>(QLatin1String(watcherService), *m_bus,
                                                      QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                setRegistered(false);
                if (!newOwner.isEmpty())
                    registerItem();
            });
    registerItem();
}

void StatusItem::registerItem()
{
    QDBusMessage message = QDBusMessage::createMethodCall(QLatin1String(watcherService), watcherPath,
                                                          QLatin1String(watcherService),
                                                          QStringLiteral("RegisterStatusNotifierItem"));
    // A panel is not started for the sake of an icon.
    message.setAutoStartService(false);
    message.setArguments({m_options.service});
    auto *const call = new QDBusPendingCallWatcher(m_bus->asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        if (m_isWanted && m_watcher && !call->isError())
            setRegistered(true);
    });
}

void StatusItem::hide()
{
    if (!std::exchange(m_isWanted, false) || !m_bus || !m_watcher)
        return;
    m_watcher.reset();
    m_bus->unregisterService(m_options.service);
    m_bus->unregisterObject(QLatin1String(path), QDBusConnection::UnregisterTree);
    setRegistered(false);
}

void StatusItem::reassert()
{
    if (m_isWanted && m_watcher && !m_isRegistered)
        registerItem();
}

void StatusItem::setToolTip(const QString &text)
{
    if (std::exchange(m_toolTip, text) != text && m_isRegistered)
        emit NewToolTip();
}

StatusPixmaps StatusItem::iconPixmap() const
{
    StatusPixmaps pixmaps;
    for (const QImage &image : m_options.images)
        pixmaps.append(StatusPixmap::of(image));
    return pixmaps;
}

void StatusItem::setRegistered(bool registered)
{
    if (std::exchange(m_isRegistered, registered) != registered)
        emit shownChanged();
}
