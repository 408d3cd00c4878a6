#include "Session/FilePortal.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QUrl>
#include <QWindow>

namespace
{
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString desktopPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// The window that the dialog belongs to, as portals name windows; empty where that cannot be told.
QString parentWindow()
{
    const QWindow *const window = QGuiApplication::focusWindow();
    if (!window || QGuiApplication::platformName() != QStringLiteral("xcb"))
        return {};
    return QStringLiteral("x11:") + QString::number(window->winId(), 16);
}
} // namespace

FilePortal::FilePortal(const QDBusConnection &bus, QObject *parent) : QObject(parent), m_bus(bus) {}

FilePortal::~FilePortal()
{
    if (m_receiver)
        m_bus.send(QDBusMessage::createMethodCall(service, m_requestPath, requestInterface,
                                                  QStringLiteral("Close")));
}

void FilePortal::ask(const QString &method, const QString &title, QVariantMap options, Receiver receiver)
{
    m_receiver = std::move(receiver);
    if (!m_bus.isConnected())
        return answer(std::unexpected(NoFile::noPortal));

    const QString token = QStringLiteral("orvel%1_%2").arg(quintptr(this)).arg(++m_count);
    // The answer may come before the call returns, so the path that it comes from is worked out beforehand.
    listenTo(desktopPath + QStringLiteral("/request/") + m_bus.baseService().mid(1).replace(u'.', u'_') +
             u'/' + token);
    options.insert(QStringLiteral("handle_token"), token);
    options.insert(QStringLiteral("modal"), true);
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, desktopPath, QStringLiteral("org.freedesktop.portal.FileChooser"), method);
    question.setArguments({parentWindow(), title, options});
    auto *const call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, count = m_count] {
        call->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> handle = *call;
        if (count != m_count || !m_receiver)
            return;
        if (handle.isError())
            answer(std::unexpected(NoFile::noPortal));
        else
            listenTo(handle.value().path());
    });
}

void FilePortal::listenTo(const QString &requestPath)
{
    if (m_requestPath == requestPath)
        return;
    const QString response = QStringLiteral("Response");
    if (!m_requestPath.isEmpty())
        m_bus.disconnect(service, m_requestPath, requestInterface, response, this,
                         SLOT(responded(uint, QVariantMap)));
    m_requestPath = requestPath;
    m_bus.connect(service, m_requestPath, requestInterface, response, this,
                  SLOT(responded(uint, QVariantMap)));
}

void FilePortal::responded(uint response, const QVariantMap &results)
{
    const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
    const QString path = uris.isEmpty() ? QString() : QUrl(uris.first()).toLocalFile();
    if (response != 0 || path.isEmpty())
        return answer(std::unexpected(NoFile::cancelled));
    answer(path);
}

void FilePortal::answer(const std::expected<QString, NoFile> &path)
{
    if (const Receiver receiver = std::exchange(m_receiver, {}))
        receiver(path);
}
