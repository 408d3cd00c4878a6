#include "Features/Code/OrphanReaper.h"

#include <QByteArrayView>
#include <QFile>

#include <csignal>
#include <mutex>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{
using namespace std::chrono_literals;

/// A limit that no system looks at any more: every descendant inherits it, and nobody can raise it again.
constexpr auto markLimit = RLIMIT_LOCKS;

std::mutex mutex;
int reapers = 0;

rlim_t limitOf(pid_t pid)
{
    rlimit limit{RLIM_INFINITY, RLIM_INFINITY};
    ::prlimit(pid, markLimit, nullptr, &limit);
    return limit.rlim_max;
}

/// Returns whether there was one.
bool killOnce()
{
    // New children of a program belong to its main thread.
    QFile file(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    bool hasOrphans = false;
    const auto children = file.readAll().split(' ');
    for (const QByteArray &child : children) {
        const pid_t pid = child.toInt();
        if (pid <= 0 || limitOf(pid) >= limitOf(0))
            continue;
        hasOrphans = true;
        // A group is killed at one stroke, so that none of it can fork in between.
        if (const pid_t group = ::getpgid(pid); group > 0 && group != ::getpgrp())
            ::kill(-group, SIGKILL);
        ::kill(pid, SIGKILL);
        ::waitpid(pid, nullptr, WNOHANG);
    }
    return hasOrphans;
}
} // namespace

OrphanReaper::OrphanReaper()
{
    const std::scoped_lock lock(mutex);
    if (reapers++ == 0)
        ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

OrphanReaper::~OrphanReaper()
{
    const std::scoped_lock lock(mutex);
    if (--reapers == 0)
        ::prctl(PR_SET_CHILD_SUBREAPER, 0);
}

void OrphanReaper::killOrphans(std::chrono::steady_clock::time_point until)
{
    // The list may miss a process while others start and end, so it has to be empty twice.
    for (int timesEmpty = 0; timesEmpty < 2 && std::chrono::steady_clock::now() < until;) {
        timesEmpty = killOnce() ? 0 : timesEmpty + 1;
        std::this_thread::sleep_for(2ms);
    }
}

void OrphanReaper::mark()
{
    rlimit limit{};
    ::getrlimit(markLimit, &limit);
    limit.rlim_max = limit.rlim_max > 0 ? limit.rlim_max - 1 : 0;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(markLimit, &limit);
}
