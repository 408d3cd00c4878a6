#include "Support/Updates/PackageArchive.h"

#include "Foundation/LazyLibrary.h"
#include "Support/Updates/AppBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{
using Result = std::expected<void, QString>;

/// The functions of libarchive that are called here.
struct Archive {
    decltype(&::archive_entry_filetype) entryFiletype;
    decltype(&::archive_entry_hardlink) entryHardlink;
    decltype(&::archive_entry_pathname) entryPathname;
    decltype(&::archive_entry_perm) entryPerm;
    decltype(&::archive_entry_symlink) entrySymlink;
    decltype(&::archive_error_string) errorString;
    decltype(&::archive_read_data) readData;
    decltype(&::archive_read_free) readFree;
    decltype(&::archive_read_new) readNew;
    decltype(&::archive_read_next_header) readNextHeader;
    decltype(&::archive_read_open_filename) readOpenFilename;
    decltype(&::archive_read_support_format_zip_seekable) readSupportFormatZipSeekable;
};

std::expected<Archive, QString> load()
{
    // The number in the library's name, which its header does not tell.
    LazyLibrary library(u"archive"_s, 13);
    Archive functions = {};
    library.resolve(functions.entryFiletype, "archive_entry_filetype");
    library.resolve(functions.entryHardlink, "archive_entry_hardlink");
    library.resolve(functions.entryPathname, "archive_entry_pathname");
    library.resolve(functions.entryPerm, "archive_entry_perm");
    library.resolve(functions.entrySymlink, "archive_entry_symlink");
    library.resolve(functions.errorString, "archive_error_string");
    library.resolve(functions.readData, "archive_read_data");
    library.resolve(functions.readFree, "archive_read_free");
    library.resolve(functions.readNew, "archive_read_new");
    library.resolve(functions.readNextHeader, "archive_read_next_header");
    library.resolve(functions.readOpenFilename, "archive_read_open_filename");
    library.resolve(functions.readSupportFormatZipSeekable, "archive_read_support_format_zip_seekable");
    if (const auto state = library.state(); !state)
        return std::unexpected(state.error());
    return functions;
}

const std::expected<Archive, QString> &loaded()
{
    static const std::expected<Archive, QString> archive = load();
    return archive;
}

/// Only once `loaded` has succeeded.
const Archive &library()
{
    return *loaded();
}

using Reader =
    std::unique_ptr<struct archive, decltype([](struct archive *each) { library().readFree(each); })>;

/// So that a tiny archive of much the same bytes is not taken for a bomb.
constexpr qint64 bytesBeforeRatioCounts = 1 << 20;
/// Of one name.
constexpr qsizetype mostNameBytes = 1024;

std::unexpected<QString> refusal(const QString &reason)
{
    return std::unexpected(reason);
}

/// Whether the directory at the end of the archive is small: the reader holds it in memory, several times its
/// size.
bool hasSmallDirectory(const QString &archive, qint64 mostBytes)
{
    constexpr qsizetype endSize = 22, longestComment = 65535;
    QFile file(archive);
    if (!file.open(QIODevice::ReadOnly) ||
        !file.seek(qMax<qint64>(0, file.size() - endSize - longestComment)))
        return false;
    const qint64 tailStart = file.pos();
    const QByteArray tail = file.readAll();
    const qsizetype end = tail.chopped(qMin(tail.size(), endSize - 4)).lastIndexOf("PK\5\6");
    if (end < 0)
        return false;
    // The larger form is for archives that no package grows into.
    if (end >= 20 && tail.sliced(end - 20).startsWith("PK\6\7"))
        return false;
    const qint64 size = qFromLittleEndian<quint32>(tail.constData() + end + 12);
    const qint64 start = qFromLittleEndian<quint32>(tail.constData() + end + 16);
    return size <= mostBytes && tailStart + end - start <= mostBytes;
}

/// The parts of a name that stays inside; empty for any other.
QStringList partsOf(const QByteArray &name)
{
    const QString text = QString::fromUtf8(name);
    if (name.size() > mostNameBytes || text.toUtf8() != name || text.contains(u'\0'))
        return {};
    QStringList parts = text.split(u'/');
    // A folder's name ends in a slash.
    if (parts.last().isEmpty())
        parts.removeLast();
    const bool isBad = std::ranges::any_of(
        parts, [](const QString &part) { return part.isEmpty() || part == "."_L1 || part == ".."_L1; });
    return isBad ? QStringList() : parts;
}

class Unpacking
{
public:
    Unpacking(const QString &folder, qint64 allowedBytes, qint64 allowedEntries, const std::stop_token &stop)
        : m_folder(folder), m_allowedBytes(allowedBytes), m_allowedEntries(allowedEntries), m_stop(stop)
    {
    }

    Result run(const QString &archive)
    {
        if (!loaded())
            return refusal(loaded().error());
        m_reader.reset(library().readNew());
        library().readSupportFormatZipSeekable(m_reader.get());
        if (library().readOpenFilename(m_reader.get(), QFile::encodeName(archive).constData(), 1 << 16) !=
            ARCHIVE_OK)
            return readingFailed();
        for (;;) {
            archive_entry *entry = nullptr;
            const int status = library().readNextHeader(m_reader.get(), &entry);
            if (status == ARCHIVE_EOF)
                return {};
            if (status != ARCHIVE_OK)
                return readingFailed();
            if (const Result taken = take(entry); !taken)
                return taken;
        }
    }

private:
    Result readingFailed() const
    {
        const char *const reason = library().errorString(m_reader.get());
        return refusal(reason ? QString::fromUtf8(reason) : u"The archive can't be read."_s);
    }

    Result take(archive_entry *entry)
    {
        const char *const name = library().entryPathname(entry);
        const QStringList parts = partsOf(name);
        if (parts.isEmpty())
            return refusal(u"A name leads outside: %1"_s.arg(QString::fromUtf8(name)));
        const QString path = parts.join(u'/');
        if (m_seen.size() >= m_allowedEntries)
            return refusal(u"There are more than %1 entries."_s.arg(m_allowedEntries));
        if (m_seen.contains(path))
            return refusal(u"A name occurs twice: %1"_s.arg(path));
        m_seen.insert(path);

        const auto type = library().entryFiletype(entry);
        if ((type != AE_IFREG && type != AE_IFDIR) || library().entrySymlink(entry) ||
            library().entryHardlink(entry))
            return refusal(u"Neither file nor folder: %1"_s.arg(path));
        if (parts.first() != AppBundle::name)
            return {};
        if (!makeFolder(type == AE_IFDIR ? parts : parts.first(parts.size() - 1)))
            return refusal(u"The folder can't be made: %1"_s.arg(path));
        if (type == AE_IFDIR)
            return {};
        return writeFile(m_folder.filePath(path), library().entryPerm(entry) & 0100);
    }

    bool makeFolder(const QStringList &parts) const
    {
        return parts.isEmpty() || m_folder.mkpath(parts.join(u'/'));
    }

    Result writeFile(const QString &path, bool isExecutable)
    {
        QFile file(path);
        // Never through something that is there already.
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            return refusal(file.errorString());
        for (;;) {
            const la_ssize_t count = library().readData(m_reader.get(), m_buffer.data(), m_buffer.size());
            if (count < 0)
                return readingFailed();
            if (count == 0)
                break;
            if (m_stop.stop_requested())
                return refusal(u"Asked to stop."_s);
            m_bytes += count;
            if (m_bytes > m_allowedBytes)
                return refusal(u"There are more than %1 bytes."_s.arg(m_allowedBytes));
            if (file.write(m_buffer.data(), count) != count)
                return refusal(file.errorString());
        }
        using enum QFileDevice::Permission;
        QFileDevice::Permissions permissions = ReadOwner | WriteOwner | ReadGroup | ReadOther;
        if (isExecutable)
            permissions |= ExeOwner | ExeGroup | ExeOther;
        if (!file.setPermissions(permissions))
            return refusal(file.errorString());
        return {};
    }

    const QDir m_folder;
    const qint64 m_allowedBytes;
    const qint64 m_allowedEntries;
    const std::stop_token m_stop;
    Reader m_reader;
    QSet<QString> m_seen;
    qint64 m_bytes = 0;
    std::array<char, 1 << 16> m_buffer;
};
} // namespace

Result PackageArchive::unpack(const QString &archive, const QString &folder, const std::stop_token &stop,
                              const Limits &limits)
{
    constexpr qint64 bytesOfAnEntry = 200 + mostNameBytes;
    if (!hasSmallDirectory(archive, limits.entries * bytesOfAnEntry))
        return refusal(u"There is no directory of a plain archive, or a huge one."_s);
    const qint64 packed = QFileInfo(archive).size();
    const qint64 bytes = std::min(limits.bytes, bytesBeforeRatioCounts + packed * limits.ratio);
    return std::make_unique<Unpacking>(folder, bytes, limits.entries, stop)->run(archive);
}
