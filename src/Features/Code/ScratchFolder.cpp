#include "Features/Code/ScratchFolder.h"

#include "Features/Code/ProcessSupervisor.h"
#include "Foundation/FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace
{
constexpr int patienceWhenCancelled = 300; // milliseconds

pid_t startRemoval(const QString &folder)
{
    QByteArray path = QFile::encodeName(folder);
    std::array texts{QByteArray("sh"), QByteArray("-c"), QByteArray(ProcessSupervisor::removeFolderScript)};
    const std::array<char *, 5> arguments{texts[0].data(), texts[1].data(), texts[2].data(), path.data(),
                                          nullptr};
    QByteArray search("PATH=/usr/bin:/bin");
    const std::array<char *, 2> environment{search.data(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    for (const int number : {0, 1, 2})
        posix_spawn_file_actions_addopen(&files, number, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_addclosefrom_np(&files, 3);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // The end of the program's terminal must not end it.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t pid = -1;
    if (posix_spawn(&pid, "/bin/sh", &files, &attributes, arguments.data(), environment.data()) != 0)
        pid = -1;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return pid;
}
} // namespace

std::expected<QString, QString> ScratchFolder::make(const QString &parent)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    const QString path = QDir(parent).filePath(QStringLiteral("OrvelRun-") + id);
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(parent).toStdString(), error);
    if (error)
        return std::unexpected(qt_error_string(error.value()));
    if (::mkdir(QFile::encodeName(path).constData(), 0700) != 0)
        return std::unexpected(qt_error_string(errno));
    return path;
}

void ScratchFolder::remove(const QString &folder, int cancelled)
{
    const pid_t pid = startRemoval(folder);
    if (pid < 0)
        return;
    const FileDescriptor process(int(::syscall(SYS_pidfd_open, pid, 0)));
    std::array<pollfd, 2> files{pollfd{process.number(), POLLIN, 0}, pollfd{cancelled, POLLIN, 0}};
    ::poll(files.data(), files.size(), -1);
    if (!files[0].revents)
        ::poll(files.data(), 1, patienceWhenCancelled);
    ::waitpid(pid, nullptr, process.isOpen() ? WNOHANG : 0);
}
