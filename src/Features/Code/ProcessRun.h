#pragma once

#include "Features/Code/RunControl.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

/// Runs a program to its end, of its own accord or not, and leaves no descendant of it behind.
namespace ProcessRun
{
struct Request {
    /// Absolute path.
    QString program;
    QStringList arguments;
    QString folder;
    QProcessEnvironment environment;
    std::chrono::milliseconds timeout{};
    /// Between asking it to end and killing it; and how long after its end to wait for what other processes
    /// still write into its pipes.
    std::chrono::milliseconds grace{1000};
    /// Bytes kept of each of its two outputs; the rest is read and dropped.
    qsizetype outputLimit = 0;
    /// Removed if this program is killed during the run; may be empty.
    QString scratchFolder;
    /// Whether to use a PID namespace where the system allows it.
    bool isIsolated = true;
    /// Hears what is printed and can stop the run; may be null.
    RunControl *control = nullptr;
};

struct Outcome {
    /// The `errno` of a failed start.
    std::optional<int> launchError;
    /// The exit status, or the number of the signal that ended it.
    int status = 0;
    bool isTimedOut = false;
    bool isStopped = false;
    QByteArray output;
    QByteArray errors;
    /// Whether something was dropped.
    bool isOutputCut = false;
    bool isErrorsCut = false;
};

/// Blocks the calling thread until all is over. Standard input is empty; the child gets no other open files
/// than its three. As soon as `cancelled` can be read everything is killed.
Outcome run(const Request &request, int cancelled);
} // namespace ProcessRun
