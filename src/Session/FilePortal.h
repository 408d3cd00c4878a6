#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <expected>
#include <functional>

/// The file dialogs of the desktop itself, which every desktop offers to programs through its portal.
class FilePortal : public QObject
{
    Q_OBJECT

public:
    enum class NoFile { cancelled, noPortal };
    using Receiver = std::function<void(const std::expected<QString, NoFile> &path)>;
    using AllReceiver = std::function<void(const std::expected<QStringList, NoFile> &paths)>;

    explicit FilePortal(const QDBusConnection &bus, QObject *parent = nullptr);
    /// Closes a dialog that is still open.
    ~FilePortal() override;

    /// @param method "OpenFile" or "SaveFile"
    /// @param options of the portal's documentation, as far as they are not the same for all
    /// @param receiver is called once; if the portal is asked anew before, it is not called at all
    void ask(const QString &method, const QString &title, QVariantMap options, Receiver receiver);
    /// The same for a dialog in which the user may choose several.
    void askForAll(const QString &method, const QString &title, QVariantMap options, AllReceiver receiver);

private slots:
    void responded(uint response, const QVariantMap &results);

private:
    void answer(const std::expected<QStringList, NoFile> &paths);
    void listenTo(const QString &requestPath);

    QDBusConnection m_bus;
    QString m_requestPath;
    AllReceiver m_receiver;
    int m_count = 0;
};
