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
    askForAll(method, title, std::move(options),
              [receiver = std::move(receiver)](const std::expected<QStringList, NoFile> &paths) {
                  if (paths)
                      receiver(paths->first());
                  else
                      receiver(std::unexpected(paths.error()));
              });
}

void FilePortal::askForAll(const QString &method, const QString &title, QVariantMap options,
                           AllReceiver receiver)
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
    QStringList paths;
    for (const QString &uri : results.value(QStringLiteral("uris")).toStringList())
        if (const QString path = QUrl(uri).toLocalFile(); !path.isEmpty())
            paths.append(path);
    if (response != 0 || paths.isEmpty())
        return answer(std::unexpected(NoFile::cancelled));
    answer(paths);
}

void FilePortal::answer(const std::expected<QStringList, NoFile> &paths)
{
    if (const AllReceiver receiver = std::exchange(m_receiver, {}))
        receiver(paths);
}
