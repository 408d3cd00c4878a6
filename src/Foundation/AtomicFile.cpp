#include "Foundation/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <utility>

// The system is called directly: QSaveFile passes over a failed sync and a dangling link.
namespace
{
using Path = std::filesystem::path;
using Outcome = std::expected<void, QString>;

/// A temporary file is the target's name, this, and six letters or digits.
constexpr char temporaryMark[] = ".saving-";
constexpr qsizetype randomLength = 6;

std::unexpected<QString> systemError(const char *step, int code = errno)
{
    return std::unexpected(QStringLiteral("%1: %2").arg(QString::fromLatin1(step), qt_error_string(code)));
}

/// Calls again what a signal has interrupted.
auto uninterrupted(auto call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// The descriptor is gone whatever the answer is, so this is never repeated.
    bool close() { return ::close(std::exchange(m_number, -1)) == 0 || errno == EINTR; }

private:
    int m_number;
};

/// Where the bytes really go: behind all links, so that the links themselves are kept.
std::expected<Path, QString> realPath(const QString &path)
{
    static constexpr int longestChain = 40;
    Path at = QFile::encodeName(path).toStdString();
    std::error_code error;
    for (int hops = 0; std::filesystem::is_symlink(at, error); ++hops) {
        if (hops == longestChain)
            return systemError("follow link", ELOOP);
        const Path next = std::filesystem::read_symlink(at, error);
        if (error)
            return systemError("follow link", error.value());
        // Relative targets are resolved by the system, since only it knows where ".." leads.
        at = at.parent_path() / next;
    }
    return at;
}

Path folderOf(const Path &file)
{
    return file.has_parent_path() ? file.parent_path() : Path(".");
}

Outcome fill(Descriptor &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            uninterrupted([&] { return ::write(file.number(), bytes.data(), std::size_t(bytes.size())); });
        if (written < 0)
            return systemError("write");
        bytes = bytes.sliced(written);
    }
    if (uninterrupted([&] { return ::fsync(file.number()); }) != 0)
        return systemError("sync");
    if (!file.close())
        return systemError("close");
    return {};
}

/// Makes the rename itself durable.
Outcome syncFolder(const Descriptor &folder)
{
    // Some network file systems can't sync a folder and say so with EINVAL; there is nothing more to do
    // there.
    if (uninterrupted([&] { return ::fsync(folder.number()); }) != 0 && errno != EINVAL)
        return systemError("sync folder");
    return {};
}
} // namespace

std::expected<void, QString> AtomicFile::write(const QString &path, QByteArrayView bytes)
{
    const auto target = realPath(path);
    if (!target)
        return std::unexpected(target.error());
    const Descriptor folder(
        uninterrupted([&] { return ::open(folderOf(*target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!folder.isOpen())
        return systemError("open folder");

    std::string temporary;
    Descriptor file(uninterrupted([&] {
        temporary = target->native() + temporaryMark + std::string(randomLength, 'X');
        return ::mkostemp(temporary.data(), O_CLOEXEC);
    }));
    if (!file.isOpen())
        return systemError("create temporary file");

    Outcome outcome = fill(file, bytes);
    if (outcome && uninterrupted([&] { return std::rename(temporary.c_str(), target->c_str()); }) != 0)
        outcome = systemError("rename");
    if (outcome)
        return syncFolder(folder);
    ::unlink(temporary.c_str());
    return outcome;
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
