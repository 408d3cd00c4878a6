#include "Foundation/LogFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <atomic>

namespace
{

constexpr qsizetype maxTextLength = 1000;

std::atomic<LogFile *> current;

QLatin1String nameOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QLatin1String("debug");
    case QtInfoMsg:
        return QLatin1String("info");
    case QtWarningMsg:
        return QLatin1String("warning");
    case QtCriticalMsg:
        return QLatin1String("critical");
    case QtFatalMsg:
        return QLatin1String("fatal");
    }
    Q_UNREACHABLE();
}

QString placeOf(const QMessageLogContext &context)
{
    if (!context.file)
        return {};
    return QFileInfo(QString::fromUtf8(context.file)).fileName() + u':' + QString::number(context.line);
}

} // namespace

LogFile::LogFile(Options options) : m_options(std::move(options))
{
    Q_ASSERT(!current);
    current = this;
    m_before = qInstallMessageHandler(handle);
}

LogFile::~LogFile()
{
    qInstallMessageHandler(m_before);
    current = nullptr;
}

QString LogFile::defaultFolder()
{
    QString place = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(place))
        place = QDir::homePath() + QStringLiteral("/.local/state");
    return place + QStringLiteral("/Orvel/log");
}

void LogFile::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    LogFile *const log = current;
    if (!log)
        return;
    // What the file itself may warn of can't go into it.
    static thread_local bool isWriting = false;
    if (!isWriting) {
        isWriting = true;
        log->write(type, context, text);
        isWriting = false;
    }
    if (log->m_before)
        log->m_before(type, context, text);
}

void LogFile::write(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QLatin1String category(context.category ? context.category : "default");
    const bool isOwn = category.startsWith(QLatin1String("orvel."));
    if (!isOwn && (type == QtDebugMsg || type == QtInfoMsg))
        return;
    QString content = isOwn ? text.left(maxTextLength) : placeOf(context);
    content.replace(u'\n', u' ');
    const QMutexLocker locker(&m_mutex);
    if (!open())
        return;
    const QString line = m_options.now().toString(Qt::ISODateWithMs) + u' ' + nameOf(type) + u' ' + category +
                         u' ' + content + u'\n';
    m_file.write(line.toUtf8());
    m_file.flush();
}

/// Makes room for one more line. A file that can't be opened is tried again with the next message.
bool LogFile::open()
{
    if (m_file.isOpen() && m_file.size() < m_options.maxBytes)
        return true;
    const QDir folder(m_options.folder);
    const QString path = folder.filePath(QStringLiteral("orvel.log"));
    m_file.close();
    if (QFileInfo(path).size() >= m_options.maxBytes) {
        const QString older = folder.filePath(QStringLiteral("orvel.1.log"));
        QFile::remove(older);
        QFile::rename(path, older);
    }
    m_file.setFileName(path);
    return QDir().mkpath(m_options.folder) && m_file.open(QIODevice::WriteOnly | QIODevice::Append);
}
