#include "Foundation/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

// The system is called directly: QSaveFile passes over a failed sync and a dangling link.
namespace
{
using Path = std::filesystem::path;
using Outcome = AtomicFile::Writer::Outcome;

/// A temporary file is the target's name, this, and six letters or digits.
constexpr char temporaryMark[] = ".saving-";
constexpr qsizetype randomLength = 6;

std::unexpected<FileError> systemError(const char *step, int code = errno)
{
    return std::unexpected(FileError{step, code});
}

/// Calls again what a signal has interrupted.
auto uninterrupted(auto call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

Path folderOf(const Path &file)
{
    return file.has_parent_path() ? file.parent_path() : Path(".");
}

FileDescriptor openFolder(const Path &folder)
{
    return FileDescriptor(
        uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
}

Outcome syncOpenFolder(const FileDescriptor &folder)
{
    // Some network file systems can't sync a folder and say so with EINVAL; there is nothing more to do
    // there.
    if (uninterrupted([&] { return ::fsync(folder.number()); }) != 0 && errno != EINVAL)
        return systemError("sync folder");
    return {};
}

/// Makes a file of a new name, which it appends to `name`.
FileDescriptor createBeside(std::string &name, mode_t mode)
{
    static constexpr std::string_view characters = "abcdefghijklmnopqrstuvwxyz0123456789";
    static constexpr int attempts = 100;
    const std::string prefix = name + temporaryMark;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        name = prefix;
        for (qsizetype i = 0; i < randomLength; ++i)
            name += characters[QRandomGenerator::system()->bounded(quint32(characters.size()))];
        FileDescriptor file(
            uninterrupted([&] { return ::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode); }));
        if (file.isOpen() || errno != EEXIST)
            return file;
    }
    return FileDescriptor();
}
} // namespace

QString FileError::text() const
{
    return QStringLiteral("%1: %2").arg(QString::fromLatin1(step), qt_error_string(code));
}

FileIdentity::FileIdentity(const struct stat &status)
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      modified(qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec)
{
}

std::expected<Path, FileError> AtomicFile::realPath(const QString &path)
{
    static constexpr int longestChain = 40;
    Path at = QFile::encodeName(path).toStdString();
    std::error_code error;
    const auto isLink = [&] {
        bool is = false;
        do
            is = std::filesystem::is_symlink(at, error);
        while (error == std::errc::interrupted);
        return is;
    };
    for (int hops = 0; isLink(); ++hops) {
        if (hops == longestChain)
            return systemError("follow link", ELOOP);
        const Path next = std::filesystem::read_symlink(at, error);
        if (error)
            return systemError("follow link", error.value());
        // Relative targets are resolved by the system, since only it knows where ".." leads.
        at = at.parent_path() / next;
    }
    // Taken for a file, a link that can't be looked at would be replaced.
    if (error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory)
        return systemError("follow link", error.value());
    return at;
}

Outcome AtomicFile::syncFolder(const Path &folder)
{
    const FileDescriptor file = openFolder(folder);
    return file.isOpen() ? syncOpenFolder(file) : systemError("open folder");
}

AtomicFile::Writer::Writer(Path target, Access access) : m_target(std::move(target)), m_access(access) {}

AtomicFile::Writer::~Writer()
{
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
}

Outcome AtomicFile::Writer::open()
{
    m_folder = openFolder(folderOf(m_target));
    if (!m_folder.isOpen())
        return systemError("open folder");
    struct stat before = {};
    const bool exists = ::stat(m_target.c_str(), &before) == 0;
    std::string name = m_target.native();
    m_file = createBeside(name, !exists && m_access == Access::umask ? 0666 : 0600);
    if (!m_file.isOpen())
        return systemError("create temporary file");
    m_temporary = std::move(name);
    if (exists)
        keepOwnerAndMode(before);
    else if (::geteuid() == 0 && ::fstat(m_folder.number(), &before) == 0 && before.st_uid != 0)
        // Started as root, the program leaves no file behind that the owner of the folder can't read.
        std::ignore = ::fchown(m_file.number(), before.st_uid, before.st_gid);
    return {};
}

/// What the system or the kind of disk does not allow must not keep the contents from being saved.
void AtomicFile::Writer::keepOwnerAndMode(const struct stat &before)
{
    struct stat now = {};
    if (::fstat(m_file.number(), &now) != 0)
        return;
    const bool isAnothers = now.st_uid != before.st_uid || now.st_gid != before.st_gid;
    if (isAnothers && ::fchown(m_file.number(), before.st_uid, before.st_gid) != 0)
        std::ignore = ::fchown(m_file.number(), uid_t(-1), before.st_gid);
    const mode_t mode = (before.st_mode & 07777) | S_IRUSR | S_IWUSR;
    if ((now.st_mode & 07777) != mode)
        std::ignore = ::fchmod(m_file.number(), mode);
}

Outcome AtomicFile::Writer::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            uninterrupted([&] { return ::write(m_file.number(), bytes.data(), std::size_t(bytes.size())); });
        if (written < 0)
            return systemError("write");
        bytes = bytes.sliced(written);
    }
    return {};
}

Outcome AtomicFile::Writer::sync()
{
    if (uninterrupted([&] { return ::fsync(m_file.number()); }) != 0)
        return systemError("sync");
    struct stat status = {};
    if (uninterrupted([&] { return ::fstat(m_file.number(), &status); }) != 0)
        return systemError("look at temporary file");
    m_identity = FileIdentity(status);
    if (!m_file.close())
        return systemError("close");
    return {};
}

Outcome AtomicFile::Writer::replace()
{
    if (uninterrupted([&] { return std::rename(m_temporary.c_str(), m_target.c_str()); }) != 0)
        return systemError("rename");
    m_temporary.clear();
    m_isInPlace = true;
    return syncOpenFolder(m_folder);
}

std::expected<void, QString> AtomicFile::write(const QString &path, QByteArrayView bytes, Access access)
{
    const auto target = realPath(path);
    Outcome outcome = target ? Outcome() : std::unexpected(target.error());
    if (outcome) {
        Writer writer(*target, access);
        outcome = writer.open();
        if (outcome)
            outcome = writer.write(bytes);
        if (outcome)
            outcome = writer.sync();
        if (outcome)
            outcome = writer.replace();
    }
    if (!outcome)
        return std::unexpected(outcome.error().text());
    return {};
}

void AtomicFile::sweepLeftovers(const QString &path)
{
    const auto target = realPath(path);
    if (!target)
        return;
    const QString prefix = QFile::decodeName((target->filename().native() + temporaryMark).c_str());
    QDir folder(QFile::decodeName(folderOf(*target).c_str()));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names)
        if (name.startsWith(prefix) && name.size() == prefix.size() + randomLength)
            folder.remove(name);
}
