#pragma once

#include "Foundation/FileLock.h"

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

        /// The lock beside the file that is really written, behind all links; the socket in the session's
        /// runtime folder.
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

    /// Whether this process may still write: it may not if the lock was lost to another start, as happens
    /// when its file or its folder is replaced. The error is a part of a sentence for the user. May be called
    /// on another thread once `start` has returned, one call at a time.
    std::expected<void, QString> checkLock();

    /// Finds out who this process is. The error is a sentence for the user.
    /// @param activationToken the desktop's permission to come to the front, handed to the first start
    std::expected<Role, QString> start(const QByteArray &activationToken = {});

    /// Hears later starts from now on; for the writer alone. One that comes before waits as long as it has
    /// patience.
    void listen();

signals:
    /// Another start wishes the window to come to the front.
    void raiseRequested(const QByteArray &activationToken);

private:
    void greet();
    bool ask(const QByteArray &activationToken, std::chrono::milliseconds patience) const;

    Options m_options;
    FileLock m_lock;
    QLocalServer m_server;
};
