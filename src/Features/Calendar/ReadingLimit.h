#pragma once

#include <chrono>
#include <ctime>
#include <stop_token>

/// Tells when reading a file has to end: when nobody waits for it any more, or when it has cost too much.
/// Only the work of the thread that reads counts, so that a busy machine refuses no file.
class ReadingLimit
{
public:
    ReadingLimit(std::chrono::nanoseconds maxWork, std::stop_token stop)
        : m_end(work() + maxWork), m_stop(std::move(stop))
    {
    }

    bool isReached() const { return m_stop.stop_requested() || work() >= m_end; }

private:
    static std::chrono::nanoseconds work()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    }

    std::chrono::nanoseconds m_end;
    std::stop_token m_stop;
};
