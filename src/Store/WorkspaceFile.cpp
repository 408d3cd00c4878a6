#include "Store/WorkspaceFile.h"

#include "Foundation/JsonRepair.h"
#include "Store/SnapshotCodec.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

using Path = std::filesystem::path;
using State = WorkspaceFile::State;

namespace
{
constexpr qsizetype keptVersions = 5;
/// Files changed while they are read are read again this often.
constexpr int readAttempts = 3;

constexpr std::string_view versionPrefix = "workspace-";
constexpr std::string_view temporaryPrefix = "Orvel-workspace-";

std::unexpected<FileError> systemError(const char *step, int code = errno)
{
    return std::unexpected(FileError{step, code});
}

QString toText(const Path &path)
{
    return QFile::decodeName(path.c_str());
}

void printLine(const QString &line)
{
    std::printf("[Orvel] %s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

/// Makes the folder with its parents, for this user only.
bool makeFolder(const Path &folder)
{
    if (folder.empty() || ::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST)
        return true;
    return errno == ENOENT && folder.has_parent_path() && folder.parent_path() != folder &&
           makeFolder(folder.parent_path()) && ::mkdir(folder.c_str(), 0700) == 0;
}

/// Fills the memory from the file; fewer bytes than asked for mean that it ends there.
std::expected<std::size_t, FileError> readInto(char *to, std::size_t size, const FileDescriptor &file)
{
    std::size_t done = 0;
    while (done < size) {
        const ssize_t read = ::read(file.number(), to + done, size - done);
        if (read < 0 && errno == EINTR)
            continue;
        if (read < 0)
            return systemError("read");
        if (read == 0)
            break;
        done += std::size_t(read);
    }
    return done;
}

/// Whether a workspace may begin like this. Files of zeros, pictures and the like can be told by their first
/// bytes, however long they are.
bool canBegin(QByteArrayView bytes)
{
    const QByteArrayView text = JsonRepair::trimmed(bytes);
    return text.startsWith('{') || text.startsWith("\xff\xfe") || text.startsWith("\xfe\xff");
}

std::expected<void, FileError> copyFile(const Path &from, const Path &to)
{
    const FileDescriptor file(::open(from.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen())
        return systemError("open");
    AtomicFile::Writer writer(to);
    auto outcome = writer.open();
    QByteArray piece(256 * 1024, Qt::Uninitialized);
    while (outcome) {
        const auto read = readInto(piece.data(), std::size_t(piece.size()), file);
        if (!read)
            return std::unexpected(read.error());
        if (*read == 0)
            break;
        outcome = writer.write(QByteArrayView(piece).first(qsizetype(*read)));
    }
    if (outcome)
        outcome = writer.sync();
    if (outcome)
        outcome = writer.replace();
    return outcome;
}

std::expected<void, FileError> writeAll(AtomicFile::Writer &writer, const Snapshot &snapshot)
{
    auto outcome = writer.open();
    if (!outcome)
        return outcome;
    SnapshotCodec::encode(snapshot, [&](QByteArrayView piece) {
        if (outcome)
            outcome = writer.write(piece);
    });
    return outcome;
}

/// A path in the folder that is not taken, with the moment in its name, so that names sort by age.
Path freePath(const Path &folder, std::string_view prefix, Timestamp moment)
{
    for (;; moment += std::chrono::milliseconds(1)) {
        const QString time = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC)
                                 .toString(QStringLiteral("yyyyMMdd'T'HHmmss.zzz'Z'"));
        Path path = folder / (std::string(prefix) + time.toStdString() + ".json");
        struct stat status = {};
        if (::lstat(path.c_str(), &status) != 0)
            return path;
    }
}

void removeOldVersions(const Path &folder)
{
    QDir versions(toText(folder));
    const QString pattern =
        QString::fromLatin1(versionPrefix.data(), qsizetype(versionPrefix.size())) + QStringLiteral("*.json");
    QStringList names = versions.entryList({pattern}, QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    while (names.size() > keptVersions)
        versions.remove(names.takeFirst());
}

/// By whatever way the system allows. A link needs neither room nor the right to read, and the version it
/// keeps is never written to: the save that follows puts a new file in its place.
std::expected<void, FileError> keep(const Path &file, const Path &as)
{
    if (::link(file.c_str(), as.c_str()) != 0 && !copyFile(file, as) &&
        std::rename(file.c_str(), as.c_str()) != 0)
        return systemError("keep the file found");
    return AtomicFile::syncFolder(as.parent_path());
}
} // namespace

/// Why a step failed, as the user can understand it.
QString WorkspaceFile::causeOf(const FileError &error)
{
    switch (error.code) {
    case ENOSPC:
        return tr("the disk is full");
    case EDQUOT:
        return tr("your share of the disk is used up");
    case EROFS:
        return tr("the disk can't be written");
    case EACCES:
    case EPERM:
        return tr("the folder of the workspace can't be written");
    case EIO:
        return tr("the disk reports an error");
    case ENOMEM:
        return tr("there is not enough memory");
    default:
        return error.text();
    }
}

QString WorkspaceFile::problemOf(const QString &cause)
{
    return tr("Not saved: %1. Your changes are safe only while Orvel is open.").arg(cause);
}

WorkspaceFile::Saved::Failure WorkspaceFile::refusal(const QString &reason)
{
    return {reason, problemOf(reason)};
}

WorkspaceFile::Saved::Failure WorkspaceFile::failureOf(const FileError &error)
{
    return {error.text(), problemOf(causeOf(error))};
}

struct WorkspaceFile::Reading {
    State state = State::absent;
    std::optional<SnapshotCodec::Buffer> bytes;
    QString reason;
    bool isChanging = false;
};

WorkspaceFile::WorkspaceFile(Options options) : m_options(std::move(options)) {}

WorkspaceFile::Reading WorkspaceFile::read()
{
    const auto unreadable = [](int code = errno) {
        return Reading{
            .state = State::unreadable, .reason = qt_error_string(code), .isChanging = code == ESTALE};
    };
    const QByteArray path = QFile::encodeName(m_options.path);
    struct stat status = {};
    m_known.reset();
    if (::stat(path.constData(), &status) != 0)
        return errno == ENOENT ? Reading() : unreadable();
    m_known = FileIdentity(status);
    // Opening a pipe or a device could wait for ever, or do something.
    if (!S_ISREG(status.st_mode))
        return {.state = State::unreadable, .reason = tr("it is not a regular file")};
    const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return unreadable();
    m_known = FileIdentity(status);
    // Nothing can be lost with such a file.
    if (status.st_size == 0)
        return {};
    if (status.st_size > SnapshotCodec::maxBytes)
        return {.state = State::damaged, .reason = tr("it is too large")};

    static constexpr std::size_t headSize = 64 * 1024;
    Reading reading{.state = State::whole};
    auto &bytes = reading.bytes.emplace(std::size_t(status.st_size));
    const std::size_t head = std::min(headSize, bytes.size());
    auto size = readInto(bytes.data(), head, file);
    if (size && !canBegin(bytes.view().first(qsizetype(*size))))
        return {.state = State::damaged, .reason = tr("it holds no workspace")};
    if (size && *size == head)
        size = readInto(bytes.data() + head, bytes.size() - head, file);
    if (!size)
        return unreadable(size.error().code);
    reading.isChanging = ::fstat(file.number(), &status) != 0 || FileIdentity(status) != *m_known;
    return reading;
}

WorkspaceFile::Loaded WorkspaceFile::load()
{
    AtomicFile::sweepLeftovers(m_options.path);
    Loaded loaded;
    QString reason;
    try {
        Reading reading = read();
        for (int attempt = 1; reading.isChanging && attempt < readAttempts; ++attempt)
            reading = read();
        loaded.state = reading.state;
        reason = reading.reason;
        if (reading.state == State::whole) {
            auto decoded = SnapshotCodec::decode(*reading.bytes, m_options.now(), m_options.makeId);
            if (!decoded) {
                loaded.state = State::damaged;
                reason = decoded.error();
            } else {
                loaded.state = decoded->isLossy() ? State::partial : State::whole;
                loaded.snapshot = std::move(decoded->snapshot);
                reason = decoded->report.unreadableKeys.join(QStringLiteral(", "));
            }
        }
    } catch (const std::bad_alloc &) {
        loaded = {.state = State::unreadable};
        reason = tr("there is not enough memory");
    }
    m_state = loaded.state;
    loaded.notice = noticeOfLoad(loaded.state, reason);
    return loaded;
}

QString WorkspaceFile::noticeOfLoad(State state, const QString &reason)
{
    switch (state) {
    case State::absent:
    case State::whole:
        return {};
    case State::partial:
        if (reason.isEmpty())
            return tr(
                "This workspace holds things that this version of Orvel does not know. The file as it is "
                "will be kept before it is saved.");
        return tr("Parts of the workspace could not be read (%1). The file as it is will be kept before it "
                  "is "
                  "saved.")
            .arg(reason);
    case State::damaged:
    case State::unreadable:
        break;
    }
    return tr("The workspace file could not be read: %1. It will be kept before anything is saved.")
        .arg(reason);
}

WorkspaceFile::Saved WorkspaceFile::save(Snapshot snapshot)
{
    Saved saved;
    try {
        const auto target = AtomicFile::realPath(m_options.path);
        const Outcome outcome = target ? write(std::move(snapshot), *target, saved.notice)
                                       : Outcome(std::unexpected(failureOf(target.error())));
        if (!outcome)
            saved.failure = outcome.error();
    } catch (const std::bad_alloc &) {
        saved.failure = failureOf({"encode", ENOMEM});
    }
    return saved;
}

WorkspaceFile::Outcome WorkspaceFile::write(Snapshot snapshot, const Path &target, QString &notice)
{
    makeFolder(target.parent_path());
    if (m_options.checkLock)
        if (const auto lock = m_options.checkLock(); !lock)
            return std::unexpected(refusal(lock.error()));
    struct stat status = {};
    if (::stat(target.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        return std::unexpected(refusal(tr("%1 is not a regular file").arg(toText(target))));

    AtomicFile::Writer writer(target);
    auto outcome = writeAll(writer, snapshot);
    snapshot = {};
    if (outcome)
        outcome = writer.sync();
    if (!outcome)
        return std::unexpected(failureOf(outcome.error()));
    // As late as possible, since another program may write at any time.
    if (const auto kept = keepWhatIsThere(target, notice); !kept)
        return kept;
    outcome = writer.replace();
    if (writer.isInPlace()) {
        m_known = writer.identity();
        m_state = State::whole;
    }
    if (!outcome)
        return std::unexpected(failureOf(outcome.error()));
    return {};
}

WorkspaceFile::Outcome WorkspaceFile::keepWhatIsThere(const Path &target, QString &notice)
{
    struct stat status = {};
    if (::stat(target.c_str(), &status) != 0) {
        if (errno == ENOENT)
            return {};
        return std::unexpected(failureOf({"look at the file", errno}));
    }
    if (!S_ISREG(status.st_mode))
        return std::unexpected(refusal(tr("%1 is not a regular file").arg(toText(target))));
    const FileIdentity found(status);
    const bool isTakenOver = m_state == State::whole || m_state == State::absent;
    if ((isTakenOver && m_known == found) || status.st_size == 0)
        return {};
    const auto place = rescue(target);
    if (!place)
        return std::unexpected(refusal(
            tr("the file that is there can't be kept (%1)").arg(qt_error_string(place.error().code))));
    notice = isTakenOver
                 ? tr("Another program changed the workspace file. That version is kept as %1").arg(*place)
                 : tr("The workspace file as it was found is kept as %1").arg(*place);
    printLine(notice);
    // A save that fails after this need not keep the same version again.
    m_known = found;
    m_state = State::whole;
    return {};
}

std::expected<QString, FileError> WorkspaceFile::rescue(const Path &target) const
{
    const Path folder = QFile::encodeName(m_options.rescueFolder).toStdString();
    makeFolder(folder);
    Path version = freePath(folder, versionPrefix, m_options.now());
    auto kept = keep(target, version);
    if (!kept) {
        // The rescue folder may lie on another disk, or not be there at all.
        version = freePath(target.parent_path(), versionPrefix, m_options.now());
        kept = keep(target, version);
    }
    if (!kept)
        return std::unexpected(kept.error());
    removeOldVersions(folder);
    return toText(version);
}

std::expected<QString, QString> WorkspaceFile::saveInto(const QString &folder, const Snapshot &snapshot) const
{
    const Path place = freePath(QFile::encodeName(folder).toStdString(), temporaryPrefix, m_options.now());
    AtomicFile::Writer writer(place);
    auto outcome = writeAll(writer, snapshot);
    if (outcome)
        outcome = writer.sync();
    if (outcome)
        outcome = writer.replace();
    if (!outcome)
        return std::unexpected(outcome.error().text());
    return toText(place);
}
