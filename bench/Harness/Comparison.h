#pragma once

#include <QList>
#include <QString>

#include <chrono>
#include <functional>

/// Measures our work against a baseline in the same run and prints, for each budget, one line
///
///     what | ours | baseline | ratio | goal | ok
///
/// with "MISSED" in the place of "ok" if the goal is not reached. With ORVEL_BENCH_SMOKE in the environment
/// the work is done once and no goal is judged, which shows that a bench still runs, on any machine.
class Comparison
{
public:
    using Duration = std::chrono::duration<double, std::milli>;
    /// Does its work once and tells how long that took, which leaves it to prepare and to clean up outside.
    using Run = std::function<Duration()>;

    struct Times {
        QList<Duration> ours;
        QList<Duration> baseline;
    };

    /// Runs both in turns, so that a busy machine slows down both, after one round that does not count.
    static Times alternate(int rounds, const Run &ours, const Run &baseline);
    /// The least disturbed of the runs.
    static Duration best(const QList<Duration> &times);
    /// The time that this share of the runs, 0 to 1, does not exceed.
    static Duration quantile(QList<Duration> times, double share);

    /// Our time may be at most `limit` times the baseline's.
    void timeAtMost(const QString &what, Duration ours, Duration baseline, double limit);
    /// Our throughput has to be at least `limit` times the baseline's.
    void throughputAtLeast(const QString &what, Duration ours, Duration baseline, double limit);
    /// Our time has to stay under `limit`; the baseline is for information.
    void timeUnder(const QString &what, Duration ours, Duration baseline, Duration limit);
    /// Our figure may be at most `limit` times the baseline's, both in this unit.
    void figureAtMost(const QString &what, const QString &unit, double ours, double baseline, double limit);

    /// For `main` to return: 0 if every goal was reached, else 1.
    int exitCode() const { return m_isMissed ? 1 : 0; }

private:
    void print(const QString &what, const QString &unit, double ours, double baseline, double ratio,
               const QString &goal, bool isReached);

    bool m_isMissed = false;
};

/// How long the call takes.
template <typename Call>
Comparison::Duration timed(Call call)
{
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::steady_clock::now() - start;
}
