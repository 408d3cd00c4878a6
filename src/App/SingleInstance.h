#pragma once

#include <QLocalServer>
#include <QObject>

#include <chrono>
#include <expected>

/// Sees to it that one process at a time writes a data folder. The first start holds a lock, which the system
/// releases however the process ends; a later start asks the first to show its window.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    struct Options {
        /// An empty file that carries the lock and is never removed; its folder has to exist.
        QString lockPath;
        /// Where the first start listens; at most about 100 bytes.
        QString socketPath;
        /// How long a later start waits for the answer of the first.
        std::chrono::milliseconds patience{5000};

        /// The lock beside the workspace file, the socket in the session's runtime folder.
        static Options forWorkspace(const QString &filePath);
    };

    enum class Role {
        /// This process may write.
        writer,
        /// Another process writes and has been asked to show its window; this one has nothing left to do.
        visitor
    };

    explicit SingleInstance(Options options, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Finds out who this process is. The error is a sentence for the person.
    /// @param activationToken the desktop's permission to come to the front, handed to the first start
    std::expected<Role, QString> start(const QByteArray &activationToken = {});

signals:
    /// Another start wishes the window to come to the front.
    void raiseRequested(const QByteArray &activationToken);

private:
    enum class Lock { held, taken, impossible };

    Lock lock();
    void listen();
    void greet();
    bool ask(const QByteArray &activationToken, std::chrono::milliseconds patience) const;

    Options m_options;
    int m_lockFile = -1;
    QLocalServer m_server;
};
