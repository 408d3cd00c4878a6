#pragma once

#include <sys/types.h>

/// The process between the program and a child it runs. It makes sure that nothing the child has started is
/// left when the run is over, in whatever session or group it hides, and also when the program itself dies.
///
/// Where the system allows it, it is the first process of a PID namespace: the child can neither see nor
/// signal anything outside, can't stop or kill the supervisor, and dies with it.
///
/// It is a fork of the program that never executes anything else, so all its code does without locks and
/// memory allocation.
namespace ProcessSupervisor
{
/// What to start. All texts stay valid, since the fork has its own copy of them.
struct Child {
    const char *program = nullptr;
    char *const *arguments = nullptr;
    char *const *environment = nullptr;
    const char *folder = nullptr;
    /// Removed with all its content if the program dies; may be empty.
    const char *scratchFolder = nullptr;
    int input = -1;
    int output = -1;
    int errors = -1;
    /// Our end of a pair of sequenced sockets: commands come in, reports go out.
    int channel = -1;
    /// Between asking the child to end and killing it.
    int graceMilliseconds = 1000;
    /// Whether the supervisor gets namespaces of its own; only where `canIsolate()`.
    bool isIsolated = false;
};

enum Command : char {
    /// Ask the child to end, and kill everything after the grace.
    terminate = 't',
    /// Kill everything that is left, and end.
    finish = 'f'
};

struct Report {
    enum Kind : int {
        /// The value is the child's process id.
        started,
        /// The value is the reason, an `errno`.
        launchFailed,
        /// The value is the child's status, as `waitpid` gives it.
        ended
    };
    Kind kind = started;
    int value = 0;
};

/// Whether this system lets an ordinary program make PID namespaces. Tried out once.
bool canIsolate();

/// Forks the supervisor. Its process ends when no descendant is left; killing it ends all descendants if it
/// is isolated, else makes them children of this program's nearest subreaper.
/// @return its process id, or -1 with `errno` set
pid_t start(const Child &child);

/// Removes a folder, whatever modes its contents have. To be given to `/bin/sh -c`, followed by the folder.
constexpr const char *removeFolderScript =
    "rm -rf -- \"$0\" || { chmod -R u+rwx -- \"$0\"; rm -rf -- \"$0\"; }";
} // namespace ProcessSupervisor
