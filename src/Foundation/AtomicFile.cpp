#include "Foundation/AtomicFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QtGlobal>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace
{
std::unexpected<QString> systemError(const char *step)
{
    const int code = errno;
    return std::unexpected(QStringLiteral("%1: %2").arg(QString::fromLatin1(step), qt_error_string(code)));
}

/// Where the bytes really go: the target of a link, so that the link itself is kept.
QString realPath(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

/// Makes the rename itself durable.
std::expected<void, QString> syncFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return systemError("open folder");
    const bool synced = ::fsync(handle) == 0;
    const auto error = synced ? std::unexpected(QString()) : systemError("sync folder");
    ::close(handle);
    if (!synced)
        return error;
    return {};
}
} // namespace

std::expected<void, QString> AtomicFile::write(const QString &path, QByteArrayView bytes)
{
    const QString target = realPath(path);
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return std::unexpected(file.errorString());
    if (!file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        return std::unexpected(file.errorString());
    if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush())
        return std::unexpected(file.errorString());
    // QSaveFile syncs too but does not look at the answer; a disk that is full may say so only here.
    if (::fsync(file.handle()) != 0)
        return systemError("sync");
    if (!file.commit())
        return std::unexpected(file.errorString());
    return syncFolder(QFileInfo(target).absolutePath());
}

void AtomicFile::sweepLeftovers(const QString &path)
{
    const QFileInfo target(realPath(path));
    static const QString suffix = QStringLiteral("\\.[A-Za-z]{6}");
    const QRegularExpression leftover(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(target.fileName()) + suffix));
    QDir folder(target.absolutePath());
    const QStringList names =
        folder.entryList({target.fileName() + QStringLiteral(".*")}, QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        if (leftover.match(name).hasMatch())
            folder.remove(name);
}
