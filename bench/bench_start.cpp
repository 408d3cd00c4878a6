#include "Harness/Comparison.h"
#include "Harness/WorkspaceGenerator.h"
#include "Store/SnapshotCodec.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace
{
constexpr int rounds = 7;
/// What a program takes to settle after its first frame.
constexpr unsigned long settling = 700;
constexpr char firstFrame[] = "first frame";
constexpr char workspaceShown[] = "workspace shown";

[[noreturn]] void fail(const QString &what)
{
    std::fprintf(stderr, "bench_start: %s\n", qUtf8Printable(what));
    std::exit(2);
}

struct Start {
    Comparison::Duration firstFrame;
    /// To the first frame with the workspace; of the program alone.
    Comparison::Duration workspace;
    /// The most memory held so far, in megabytes.
    double memory;
};

/// Most memory that the process has held, in megabytes.
double peakMemory(qint64 process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        fail(status.errorString());
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    fail(QStringLiteral("the system does not tell how much memory a process takes"));
}

Start start(const QString &program, const QByteArray &lastLine, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setReadChannel(QProcess::StandardError);
    QElapsedTimer timer;
    timer.start();
    process.start(program, QStringList());
    QByteArray output;
    const auto readUntil = [&](const QByteArray &line) {
        while (!output.contains(line)) {
            if (!process.waitForReadyRead(20'000))
                fail(program + QStringLiteral(" does not tell: ") + QString::fromUtf8(line + ": " + output));
            output += process.readAllStandardError();
        }
        return std::chrono::nanoseconds(timer.nsecsElapsed());
    };
    Start start{};
    start.firstFrame = readUntil(firstFrame);
    start.workspace = readUntil(lastLine);
    QThread::msleep(settling);
    start.memory = peakMemory(process.processId());
    process.kill();
    process.waitForFinished();
    return start;
}

template <typename Value>
Value median(const QList<Start> &starts, Value Start::*figure)
{
    QList<Value> values;
    for (const Start &start : starts)
        values.append(start.*figure);
    std::ranges::sort(values);
    return values.at(values.size() / 2);
}
} // namespace

/// Starts the program and an empty window in turns.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home;
    if (!QDir(home.path()).mkpath(QStringLiteral("data/Orvel")))
        fail(QStringLiteral("cannot make a place for the workspace"));
    Snapshot workspace = WorkspaceGenerator::ofFileSize(1'000'000);
    workspace.settings.hasCompletedOnboarding = true;
    QFile file(home.filePath(QStringLiteral("data/Orvel/workspace.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(SnapshotCodec::encode(workspace)) < 0 || !file.flush())
        fail(file.errorString());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nonexistent"));
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("orvel.start.info=true"));
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    if (!environment.contains(QStringLiteral("QT_QUICK_BACKEND")))
        environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));

    QList<Start> ours, others;
    const auto times = Comparison::alternate(
        rounds,
        [&] {
            return ours.emplaceBack(start(QStringLiteral(ORVEL_PROGRAM), workspaceShown, environment))
                .firstFrame;
        },
        [&] {
            return others.emplaceBack(start(QStringLiteral(EMPTY_WINDOW), firstFrame, environment))
                .firstFrame;
        });

    Comparison comparison;
    comparison.timeAtMost(QStringLiteral("start to the first frame, against an empty window"),
                          Comparison::quantile(times.ours, 0.5), Comparison::quantile(times.baseline, 0.5),
                          1.3);
    comparison.timeAtMost(QStringLiteral("start to the workspace, against an empty window"),
                          median(ours, &Start::workspace), Comparison::quantile(times.baseline, 0.5), 5);
    comparison.figureAtMost(QStringLiteral("memory after the start, against an empty window"),
                            QStringLiteral("MB"), median(ours, &Start::memory),
                            median(others, &Start::memory), 2);
    return comparison.exitCode();
}
