#include "Harness/Comparison.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{
QString rounded(double value)
{
    return QString::number(value, 'f', value < 10 ? 3 : 1);
}

bool isSmokeRun()
{
    return qEnvironmentVariableIsSet("ORVEL_BENCH_SMOKE");
}
} // namespace

Comparison::Times Comparison::alternate(int rounds, const Run &ours, const Run &baseline)
{
    Times times;
    if (isSmokeRun())
        return {{ours()}, {baseline()}};
    for (int round = 0; round <= rounds; ++round) {
        const Duration mine = ours(), other = baseline();
        if (round == 0)
            continue;
        times.ours.append(mine);
        times.baseline.append(other);
    }
    return times;
}

Comparison::Duration Comparison::best(const QList<Duration> &times)
{
    return *std::ranges::min_element(times);
}

Comparison::Duration Comparison::quantile(QList<Duration> times, double share)
{
    std::ranges::sort(times);
    return times.at(qsizetype(std::floor(share * double(times.size() - 1))));
}

void Comparison::timeAtMost(const QString &what, Duration ours, Duration baseline, double limit)
{
    figureAtMost(what, QStringLiteral("ms"), ours.count(), baseline.count(), limit);
}

void Comparison::throughputAtLeast(const QString &what, Duration ours, Duration baseline, double limit)
{
    const double ratio = baseline / ours;
    print(what, QStringLiteral("ms"), ours.count(), baseline.count(), ratio,
          QStringLiteral("throughput >= %1").arg(limit), ratio >= limit);
}

void Comparison::timeUnder(const QString &what, Duration ours, Duration baseline, Duration limit)
{
    print(what, QStringLiteral("ms"), ours.count(), baseline.count(), ours / baseline,
          QStringLiteral("< %1 ms").arg(limit.count()), ours < limit);
}

void Comparison::figureAtMost(const QString &what, const QString &unit, double ours, double baseline,
                              double limit)
{
    const double ratio = ours / baseline;
    print(what, unit, ours, baseline, ratio, QStringLiteral("<= %1").arg(limit), ratio <= limit);
}

void Comparison::print(const QString &what, const QString &unit, double ours, double baseline, double ratio,
                       const QString &goal, bool isReached)
{
    const QString verdict = isSmokeRun() ? QStringLiteral("not judged")
                            : isReached  ? QStringLiteral("ok")
                                         : QStringLiteral("MISSED");
    const QString line =
        QStringLiteral("%1 | %2 %4 | %3 %4 | %5 | %6 | %7")
            .arg(what, rounded(ours), rounded(baseline), unit, QString::number(ratio, 'f', 2), goal, verdict);
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
    m_isMissed |= !isReached && !isSmokeRun();
}
