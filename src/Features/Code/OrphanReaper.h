#pragma once

#include <chrono>

/// While one exists, processes that a run leaves behind become children of this program when their supervisor
/// is killed, instead of getting away. Needed for runs without a PID namespace alone.
class OrphanReaper
{
public:
    OrphanReaper();
    ~OrphanReaper();
    OrphanReaper(const OrphanReaper &) = delete;
    OrphanReaper &operator=(const OrphanReaper &) = delete;

    /// Kills all processes of runs that have become our children. Gives up when the time is over.
    static void killOrphans(std::chrono::steady_clock::time_point until);

    /// Marks the calling process and all its descendants as those of a run. Neither a session of their own
    /// nor another environment nor another name takes the mark away.
    static void mark();
};
