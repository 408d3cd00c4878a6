#pragma once

#include "Foundation/AtomicFile.h"

/// A lock between processes: an empty file that is never removed. The system releases it however the process
/// ends.
class FileLock
{
public:
    enum class State {
        held,
        /// Another process holds it.
        taken,
        /// There is no such lock here: the folder is missing or can't be written, or its disk knows no locks.
        impossible
    };

    /// @param path of the lock file, which is made if its folder exists
    explicit FileLock(const QString &path);

    /// Tries to get the lock, without waiting. A lock file that this user may not open, which a start as
    /// another user leaves, is replaced by a new one; the holder of the old one finds out by `check`.
    State acquire();

    /// Whether the lock is still held and is still the one on disk. A lock whose file was removed or replaced
    /// protects nothing; it is acquired anew.
    State check();

private:
    State lock();
    FileDescriptor open() const;
    bool isOnDisk() const;

    std::string m_path;
    FileDescriptor m_file;
};
