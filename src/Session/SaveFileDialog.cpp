#include "Session/SaveFileDialog.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFileInfo>
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

SaveFileDialog::SaveFileDialog(const QDBusConnection &bus, QString fallbackFolder, QObject *parent)
    : QObject(parent), m_bus(bus), m_fallbackFolder(std::move(fallbackFolder))
{
}

SaveFileDialog::~SaveFileDialog()
{
    if (m_receiver)
        m_bus.send(QDBusMessage::createMethodCall(service, m_requestPath, requestInterface,
                                                  QStringLiteral("Close")));
}

QString SaveFileDialog::freePath(const QString &folder, const QString &fileName)
{
    const QFileInfo name(fileName);
    const QDir dir(folder);
    QString path = dir.filePath(fileName);
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = dir.filePath(
            QStringLiteral("%1 %2.%3").arg(name.completeBaseName(), QString::number(number), name.suffix()));
    return path;
}

void SaveFileDialog::ask(const QString &fileName, Receiver receiver)
{
    m_fileName = fileName;
    m_receiver = std::move(receiver);
    if (!m_bus.isConnected())
        return answerWithoutAsking();

    const QString token = QStringLiteral("orvel%1_%2").arg(quintptr(this)).arg(++m_count);
    // The answer may come before the call returns, so the path that it comes from is worked out beforehand.
    listenTo(desktopPath + QStringLiteral("/request/") + m_bus.baseService().mid(1).replace(u'.', u'_') +
             u'/' + token);
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, desktopPath, QStringLiteral("org.freedesktop.portal.FileChooser"),
        QStringLiteral("SaveFile"));
    question.setArguments({parentWindow(), tr("Save"),
                           QVariantMap{{QStringLiteral("handle_token"), token},
                                       {QStringLiteral("modal"), true},
                                       {QStringLiteral("current_name"), fileName}}});
    auto *const call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, count = m_count] {
        call->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> handle = *call;
        if (count != m_count || !m_receiver)
            return;
        if (handle.isError())
            answerWithoutAsking();
        else
            listenTo(handle.value().path());
    });
}

void SaveFileDialog::listenTo(const QString &requestPath)
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

void SaveFileDialog::responded(uint response, const QVariantMap &results)
{
    const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
    const QString path = uris.isEmpty() ? QString() : QUrl(uris.first()).toLocalFile();
    if (response != 0 || path.isEmpty())
        return answer(std::nullopt);
    answer(Answer{path, true});
}

void SaveFileDialog::answerWithoutAsking()
{
    QDir().mkpath(m_fallbackFolder);
    answer(Answer{freePath(m_fallbackFolder, m_fileName), false});
}

void SaveFileDialog::answer(const std::optional<Answer> &answer)
{
    if (const Receiver receiver = std::exchange(m_receiver, {}))
        receiver(answer);
}
