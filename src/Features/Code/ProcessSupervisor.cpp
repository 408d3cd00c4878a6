#include "Features/Code/ProcessSupervisor.h"

#include "Features/Code/OrphanReaper.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using namespace ProcessSupervisor;

// Where the supervisor has its files, right behind those of the child.
constexpr int channel = 3, childSignals = 4, firstUnused = 5;
// Between two rounds of killing; longer and longer for what can't be killed.
constexpr int firstKillInterval = 5, longestKillInterval = 500;

long long now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000LL + time.tv_nsec / 1000000;
}

void report(Report::Kind kind, int value)
{
    const Report report{kind, value};
    ::send(channel, &report, sizeof report, MSG_NOSIGNAL);
}

void closeFrom(int first)
{
    if (close_range(unsigned(first), UINT_MAX, 0) == 0)
        return;
    for (int number = first; number < int(sysconf(_SC_OPEN_MAX)); ++number)
        ::close(number);
}

char *append(char *end, const char *text)
{
    while (*text)
        *end++ = *text++;
    return end;
}

char *append(char *end, id_t number)
{
    if (number >= 10)
        end = append(end, number / 10);
    *end++ = char('0' + number % 10);
    return end;
}

bool writeFile(const char *path, const char *text)
{
    const int file = ::open(path, O_WRONLY | O_CLOEXEC);
    const auto size = ssize_t(std::strlen(text));
    const bool isWritten = ::write(file, text, std::size_t(size)) == size;
    ::close(file);
    return isWritten;
}

/// Makes the user the same one within the namespace as outside.
bool mapID(const char *path, id_t id)
{
    std::array<char, 32> line{};
    append(append(append(append(line.data(), id), " "), id), " 1");
    return writeFile(path, line.data());
}

/// Like `fork`, but the new process is the first one of a PID namespace and sees only what is in there.
pid_t forkIsolated()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    const auto pid =
        pid_t(syscall(SYS_clone, CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNS | SIGCHLD, 0, 0, 0, 0));
    // Its files in /proc belong to the user only if it could be dumped.
    if (pid == 0 && !(prctl(PR_SET_DUMPABLE, 1) == 0 && writeFile("/proc/self/setgroups", "deny") &&
                      mapID("/proc/self/uid_map", user) && mapID("/proc/self/gid_map", group) &&
                      ::mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC, nullptr) == 0))
        _exit(1);
    return pid;
}

/// Puts the files in their places and closes all others.
void arrangeFiles(const Child &child)
{
    std::array files{child.input, child.output, child.errors, child.channel};
    for (int &file : files) {
        file = fcntl(file, F_DUPFD, firstUnused);
        if (file < 0)
            _exit(1);
    }
    for (std::size_t place = 0; place < files.size(); ++place)
        dup2(files[place], int(place));
    fcntl(channel, F_SETFD, FD_CLOEXEC);

    sigset_t childSignal;
    sigemptyset(&childSignal);
    sigaddset(&childSignal, SIGCHLD);
    const int descriptor = signalfd(-1, &childSignal, SFD_NONBLOCK | SFD_CLOEXEC);
    if (descriptor != childSignals)
        dup3(descriptor, childSignals, O_CLOEXEC);
    closeFrom(firstUnused);
}

void setHandling(void (*handler)(int))
{
    for (int number = 1; number < NSIG; ++number)
        ::signal(number, handler);
}

void unblockSignals()
{
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void execute(const Child &child)
{
    setsid();
    OrphanReaper::mark();
    setHandling(SIG_DFL);
    unblockSignals();
    if (::chdir(child.folder) == 0)
        execve(child.program, child.arguments, child.environment);
    report(Report::launchFailed, errno);
    _exit(127);
}

class Supervisor
{
public:
    explicit Supervisor(pid_t child, int grace) : m_child(child), m_grace(grace) {}

    /// Until there is nothing more to wait for. Returns whether the program is still there.
    bool watch()
    {
        long long killTime = LLONG_MAX;
        while (now() < killTime) {
            reap();
            std::array<pollfd, 2> files{pollfd{channel, POLLIN, 0}, pollfd{childSignals, POLLIN, 0}};
            const int wait = killTime == LLONG_MAX ? -1 : int(killTime - now()) + 1;
            if (::poll(files.data(), files.size(), wait) < 0 && errno != EINTR)
                return true;
            drainSignals();
            if (files[0].revents == 0)
                continue;
            char command = 0;
            if (::recv(channel, &command, 1, 0) <= 0)
                return false;
            if (command == finish)
                return true;
            killTime = now() + m_grace;
            if (!m_isEnded)
                ::kill(-m_child, SIGTERM);
        }
        return true;
    }

    /// Kills group by group. What the dead leave behind becomes our own child and is met in the next round.
    void killAll()
    {
        int interval = firstKillInterval;
        while (reap()) {
            const int list = ::open(m_childrenPath.data(), O_RDONLY | O_CLOEXEC);
            const ssize_t size = ::read(list, m_list.data(), m_list.size());
            ::close(list);
            killListed(size);
            pollfd file{childSignals, POLLIN, 0};
            if (::poll(&file, 1, interval) == 0)
                interval = std::min(2 * interval, longestKillInterval);
            drainSignals();
        }
    }

    void findChildren()
    {
        // "/proc/PID/task/PID/children", written without the library's help.
        char *end = append(m_childrenPath.data(), "/proc/");
        end = append(end, id_t(getpid()));
        end = append(end, "/task/");
        end = append(end, id_t(getpid()));
        *append(end, "/children") = 0;
    }

private:
    /// Whether there is any child left.
    bool reap()
    {
        int status = 0;
        pid_t pid = 0;
        while ((pid = ::waitpid(-1, &status, WNOHANG)) > 0)
            if (pid == m_child) {
                m_isEnded = true;
                report(Report::ended, status);
            }
        return pid == 0;
    }

    void killListed(ssize_t size)
    {
        if (size <= 0 && !m_isEnded)
            ::kill(-m_child, SIGKILL);
        pid_t pid = 0;
        for (ssize_t i = 0; i < size; ++i) {
            const char digit = m_list[std::size_t(i)];
            if (digit != ' ') {
                pid = pid * 10 + (digit - '0');
                continue;
            }
            // A group is killed at one stroke, so that none of it can fork in between.
            const pid_t group = getpgid(pid);
            if (group > 0 && group != getpgrp())
                ::kill(-group, SIGKILL);
            ::kill(pid, SIGKILL);
            pid = 0;
        }
    }

    static void drainSignals()
    {
        signalfd_siginfo info;
        while (::read(childSignals, &info, sizeof info) > 0) {
        }
    }

    pid_t m_child;
    int m_grace;
    bool m_isEnded = false;
    std::array<char, 64> m_childrenPath{};
    std::array<char, 32768> m_list{};
};
/// To be called in a fresh fork with all signals blocked.
[[noreturn]] void supervise(const Child &child)
{
    // Away from the terminal, whose signals are meant for the program.
    setsid();
    setHandling(SIG_IGN);
    ::signal(SIGCHLD, SIG_DFL);
    arrangeFiles(child);
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    // It has a copy of all that the program knows.
    prctl(PR_SET_DUMPABLE, 0);

    const pid_t pid = _Fork();
    if (pid == 0)
        execute(child);
    if (pid < 0) {
        report(Report::launchFailed, errno);
        _exit(1);
    }
    report(Report::started, pid);
    // The pipes have to end with the child.
    dup2(STDIN_FILENO, STDOUT_FILENO);
    dup2(STDIN_FILENO, STDERR_FILENO);

    Supervisor supervisor(pid, child.graceMilliseconds);
    supervisor.findChildren();
    const bool hasProgram = supervisor.watch();
    supervisor.killAll();
    if (!hasProgram && *child.scratchFolder) {
        unblockSignals();
        execl("/bin/sh", "sh", "-c", removeFolderScript, child.scratchFolder, nullptr);
    }
    _exit(0);
}

/// The program's own signal handlers must not run in a fork.
class SignalsBlocked
{
public:
    SignalsBlocked()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsBlocked(const SignalsBlocked &) = delete;
    SignalsBlocked &operator=(const SignalsBlocked &) = delete;

private:
    sigset_t m_before{};
};
} // namespace

bool ProcessSupervisor::canIsolate()
{
    static const bool can = [] {
        const SignalsBlocked blocked;
        const pid_t pid = forkIsolated();
        if (pid == 0)
            _exit(0);
        int status = -1;
        while (pid > 0 && ::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
        return status == 0;
    }();
    return can;
}

pid_t ProcessSupervisor::start(const Child &child)
{
    const SignalsBlocked blocked;
    const pid_t pid = child.isIsolated ? forkIsolated() : _Fork();
    if (pid == 0)
        supervise(child);
    return pid;
}
