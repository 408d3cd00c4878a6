#include "Foundation/FileLock.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace
{
constexpr mode_t lockMode = 0600;

int openLock(const std::string &path)
{
    return ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, lockMode);
}
} // namespace

FileLock::FileLock(const QString &path) : m_path(QFile::encodeName(path).toStdString()) {}

FileLock::State FileLock::acquire()
{
    // Between opening and locking the file may have been replaced.
    static constexpr int attempts = 5;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const State state = lock();
        if (state != State::held || isOnDisk())
            return state;
        m_file = FileDescriptor();
    }
    return State::taken;
}

FileLock::State FileLock::check()
{
    if (m_file.isOpen() && isOnDisk())
        return State::held;
    m_file = FileDescriptor();
    return acquire();
}

FileLock::State FileLock::lock()
{
    FileDescriptor file = open();
    if (!file.isOpen())
        return State::impossible;
    int result = 0;
    do
        result = ::flock(file.number(), LOCK_EX | LOCK_NB);
    while (result != 0 && errno == EINTR);
    if (result != 0)
        return errno == EWOULDBLOCK ? State::taken : State::impossible;
    m_file = std::move(file);
    return State::held;
}

FileDescriptor FileLock::open() const
{
    FileDescriptor file(openLock(m_path));
    if (!file.isOpen() && errno == EACCES) {
        std::string name = m_path + ".XXXXXX";
        const FileDescriptor fresh(::mkostemp(name.data(), O_CLOEXEC));
        if (fresh.isOpen() && std::rename(name.c_str(), m_path.c_str()) != 0)
            ::unlink(name.c_str());
        file = FileDescriptor(openLock(m_path));
    }
    // Started as root, the program leaves no lock behind that the owner of the folder can't open.
    struct stat folder = {};
    const std::string folderPath = m_path.substr(0, m_path.find_last_of('/') + 1);
    if (file.isOpen() && ::geteuid() == 0 && ::stat(folderPath.c_str(), &folder) == 0 && folder.st_uid != 0)
        std::ignore = ::fchown(file.number(), folder.st_uid, folder.st_gid);
    return file;
}

bool FileLock::isOnDisk() const
{
    struct stat held = {}, onDisk = {};
    return ::fstat(m_file.number(), &held) == 0 && ::stat(m_path.c_str(), &onDisk) == 0 &&
           held.st_dev == onDisk.st_dev && held.st_ino == onDisk.st_ino;
}
