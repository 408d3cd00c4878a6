#pragma once

/// The process between the program and a child it runs. It makes sure that nothing the child has started is
/// left when the run is over, in whatever session or group it hides, and also when the program itself dies.
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

/// To be called in a fresh fork with all signals blocked. Ends the process when no descendant is left.
[[noreturn]] void supervise(const Child &child);
} // namespace ProcessSupervisor
