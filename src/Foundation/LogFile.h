#pragma once

#include <QDateTime>
#include <QFile>
#include <QMutex>

#include <functional>

/// Keeps what the program logs in a file that a user can look at and send, besides showing it where it was
/// shown before. At most two files of the size given are kept, `orvel.log` and the one before it,
/// `orvel.1.log`.
///
/// The texts are those of the categories `orvel.*`, which never hold what a user has written. Of all others
/// only the category and the place in the source are kept, and only of warnings and worse.
class LogFile
{
public:
    struct Options {
        /// Made by the first message.
        QString folder;
        /// Size at which the file becomes the older one.
        qint64 maxBytes = 262'144;
        std::function<QDateTime()> now = QDateTime::currentDateTimeUtc;
    };

    /// Takes the messages of all threads from now on, until it is destroyed. There is one at a time.
    explicit LogFile(Options options);
    ~LogFile();
    Q_DISABLE_COPY_MOVE(LogFile)

    /// `$XDG_STATE_HOME/Orvel/log`, by default `~/.local/state/Orvel/log`.
    static QString defaultFolder();

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);
    void write(QtMsgType type, const QMessageLogContext &context, const QString &text);
    bool open();

    Options m_options;
    QMutex m_mutex;
    QFile m_file;
    QtMessageHandler m_before = nullptr;
};
