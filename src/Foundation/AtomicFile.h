#pragma once

#include "Foundation/FileDescriptor.h"

#include <QByteArrayView>
#include <QString>

#include <expected>
#include <filesystem>
#include <sys/types.h>

struct stat;

/// A system call that failed.
struct FileError {
    /// What was being done, such as "write".
    const char *step = "";
    /// The `errno`.
    int code = 0;

    /// The step and the system's reason.
    QString text() const;
};

/// What tells one version of a file from the next. Every replaced or rewritten file has another identity.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    qint64 modified = 0; ///< nanoseconds since 1970

    FileIdentity() = default;
    explicit FileIdentity(const struct stat &status);
    bool operator==(const FileIdentity &) const = default;
};

/// Replaces whole files durably: after a success the new bytes survive a power cut, after a failure or a
/// kill at any moment the old file is intact.
namespace AtomicFile
{
/// Who may read a file that did not exist before.
enum class Access {
    owner,
    /// Whoever the user's mask allows, as for any document.
    umask
};

/// Writes the bytes to a temporary file beside `path`, syncs it, renames it over `path` and syncs the folder.
/// An existing file keeps its mode and, where the system allows it, its owner. A symbolic link stays and its
/// target is replaced, even one that does not exist yet.
/// On failure gives the step that failed and the system's reason. If that step is the last one, the sync of
/// the folder, the new file is in place but a power cut may still bring back the old one.
std::expected<void, QString> write(const QString &path, QByteArrayView bytes, Access access = Access::owner);

/// Where the bytes of this path really lie: behind all links. The file need not exist.
std::expected<std::filesystem::path, FileError> realPath(const QString &path);

/// Makes a rename within the folder durable.
std::expected<void, FileError> syncFolder(const std::filesystem::path &folder);

/// Removes the temporary files that a killed writer of `path` left beside it.
void sweepLeftovers(const QString &path);

/// The steps of `write`, for a file that is written in pieces. Without `replace` nothing is left behind.
class Writer
{
public:
    using Outcome = std::expected<void, FileError>;

    /// @param target what `realPath` gave
    explicit Writer(std::filesystem::path target, Access access = Access::owner);
    ~Writer();
    Q_DISABLE_COPY_MOVE(Writer)

    /// Makes the temporary file.
    Outcome open();
    Outcome write(QByteArrayView bytes);
    /// Brings what was written to the disk. Afterwards nothing more can be written.
    Outcome sync();
    /// Puts the synced file in place of the target.
    Outcome replace();

    /// Whether `replace` came as far as that, even if it failed afterwards.
    bool isInPlace() const { return m_isInPlace; }
    /// Of the synced file, which it keeps when it is put in place.
    FileIdentity identity() const { return m_identity; }

private:
    void keepOwnerAndMode(const struct stat &before);

    std::filesystem::path m_target;
    Access m_access;
    FileDescriptor m_folder, m_file;
    std::string m_temporary;
    FileIdentity m_identity;
    bool m_isInPlace = false;
};
} // namespace AtomicFile
