#include "Harness/FaultySystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
FaultySystem *current = nullptr;

/// The system's own function of this name.
template <typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

template <typename Result, typename... Arguments>
Result guarded(const char *name, Arguments... arguments)
{
    if (const int error = FaultySystem::nextError(name)) {
        errno = error;
        return -1;
    }
    return real<Result(Arguments...)>(name)(arguments...);
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | __O_TMPFILE)) ? mode_t(va_arg(arguments, int)) : 0;
}

int guardedOpenAt(const char *name, int folder, const char *path, int flags, mode_t mode)
{
    if (const int error = FaultySystem::nextError(name)) {
        errno = error;
        return -1;
    }
    const int file = real<int(int, const char *, int, ...)>(name)(folder, path, flags, mode);
    FaultySystem::opened(file, path);
    return file;
}

int guardedOpen(const char *name, const char *path, int flags, mode_t mode)
{
    if (const int error = FaultySystem::nextError(name)) {
        errno = error;
        return -1;
    }
    const int file = real<int(const char *, int, ...)>(name)(path, flags, mode);
    FaultySystem::opened(file, path);
    return file;
}
} // namespace

FaultySystem::FaultySystem(Fault fault, qsizetype call, int error)
    : m_fault(fault), m_failingCall(call), m_error(error)
{
    current = this;
}

FaultySystem::~FaultySystem()
{
    current = nullptr;
}

int FaultySystem::nextError(const char *name)
{
    if (!current)
        return 0;
    const qsizetype number = current->m_calls.size();
    current->m_calls.append(QString::fromLatin1(name));
    const bool fails = current->m_fault == Fault::once          ? number == current->m_failingCall
                       : current->m_fault == Fault::fromThereOn ? number >= current->m_failingCall
                                                                : false;
    return fails || current->m_refused.contains(current->m_calls.last()) ? current->m_error : 0;
}

std::size_t FaultySystem::allowedWrite(std::size_t bytes)
{
    return current ? std::min(bytes, current->m_writeLimit) : bytes;
}

void FaultySystem::opened(int descriptor, const char *path)
{
    if (!current || descriptor < 0)
        return;
    current->m_files.insert(descriptor, current->m_opened);
    current->m_effects.append({QStringLiteral("open"), current->m_opened++, path});
}

void FaultySystem::done(const char *name, int descriptor, QByteArray bytes)
{
    if (current)
        current->m_effects.append(
            {QString::fromLatin1(name), current->m_files.value(descriptor, -1), {}, {}, std::move(bytes)});
}

void FaultySystem::done(const char *name, const char *path, const char *target)
{
    if (current)
        current->m_effects.append({QString::fromLatin1(name), -1, path, target});
}

// The program's own functions of these names come before those of the C library.
extern "C" {
int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return guardedOpen("open", path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return guardedOpen("open64", path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return guardedOpenAt("openat", folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return guardedOpenAt("openat64", folder, path, flags, mode);
}

int mkostemp(char *path, int flags)
{
    return guarded<int, char *, int>("mkostemp", path, flags);
}

int mkostemp64(char *path, int flags)
{
    return guarded<int, char *, int>("mkostemp64", path, flags);
}

ssize_t write(int file, const void *bytes, std::size_t size)
{
    const ssize_t written = guarded<ssize_t, int, const void *, std::size_t>(
        "write", file, bytes, FaultySystem::allowedWrite(size));
    if (written > 0)
        FaultySystem::done("write", file, QByteArray(static_cast<const char *>(bytes), written));
    return written;
}

ssize_t read(int file, void *bytes, std::size_t size)
{
    return guarded<ssize_t, int, void *, std::size_t>("read", file, bytes, size);
}

int stat(const char *path, struct stat *status) noexcept
{
    return guarded<int, const char *, struct stat *>("stat", path, status);
}

int lstat(const char *path, struct stat *status) noexcept
{
    return guarded<int, const char *, struct stat *>("lstat", path, status);
}

int fstat(int file, struct stat *status) noexcept
{
    return guarded<int, int, struct stat *>("fstat", file, status);
}

int fchown(int file, uid_t owner, gid_t group) noexcept
{
    return guarded<int, int, uid_t, gid_t>("fchown", file, owner, group);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return guarded<int, const char *, mode_t>("mkdir", path, mode);
}

int fchmod(int file, mode_t mode) noexcept
{
    return guarded<int, int, mode_t>("fchmod", file, mode);
}

int chmod(const char *path, mode_t mode) noexcept
{
    return guarded<int, const char *, mode_t>("chmod", path, mode);
}

int ftruncate(int file, off_t size) noexcept
{
    return guarded<int, int, off_t>("ftruncate", file, size);
}

int fsync(int file)
{
    const int result = guarded<int, int>("fsync", file);
    if (result == 0)
        FaultySystem::done("fsync", file);
    return result;
}

int fdatasync(int file)
{
    return guarded<int, int>("fdatasync", file);
}

int rename(const char *from, const char *to) noexcept
{
    const int result = guarded<int, const char *, const char *>("rename", from, to);
    if (result == 0)
        FaultySystem::done("rename", from, to);
    return result;
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    return guarded<int, int, const char *, int, const char *>("renameat", fromFolder, from, toFolder, to);
}

int link(const char *from, const char *to) noexcept
{
    const int result = guarded<int, const char *, const char *>("link", from, to);
    if (result == 0)
        FaultySystem::done("link", from, to);
    return result;
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return guarded<int, int, const char *, int, const char *, int>("linkat", fromFolder, from, toFolder, to,
                                                                   flags);
}

int unlink(const char *path) noexcept
{
    const int result = guarded<int, const char *>("unlink", path);
    if (result == 0)
        FaultySystem::done("unlink", path);
    return result;
}

int unlinkat(int folder, const char *path, int flags) noexcept
{
    return guarded<int, int, const char *, int>("unlinkat", folder, path, flags);
}

int close(int file)
{
    const int error = FaultySystem::nextError("close");
    const int result = real<int(int)>("close")(file);
    if (error == 0)
        return result;
    errno = error;
    return -1;
}
}
