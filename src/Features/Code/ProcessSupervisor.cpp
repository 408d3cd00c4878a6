#include "Features/Code/ProcessSupervisor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
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

[[noreturn]] void execute(const Child &child)
{
    setsid();
    setHandling(SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
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
        end = append(end, getpid());
        end = append(end, "/task/");
        end = append(end, getpid());
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

    static char *append(char *end, const char *text)
    {
        while (*text)
            *end++ = *text++;
        return end;
    }
    static char *append(char *end, pid_t number)
    {
        if (number >= 10)
            end = append(end, number / 10);
        *end++ = char('0' + number % 10);
        return end;
    }

    pid_t m_child;
    int m_grace;
    bool m_isEnded = false;
    std::array<char, 64> m_childrenPath{};
    std::array<char, 32768> m_list{};
};
} // namespace

void ProcessSupervisor::supervise(const Child &child)
{
    // Away from the terminal, whose signals are meant for the program.
    setsid();
    setHandling(SIG_IGN);
    ::signal(SIGCHLD, SIG_DFL);
    arrangeFiles(child);
    prctl(PR_SET_CHILD_SUBREAPER, 1);

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
    if (!hasProgram && *child.scratchFolder)
        execl("/bin/rm", "rm", "-rf", "--", child.scratchFolder, nullptr);
    _exit(0);
}
