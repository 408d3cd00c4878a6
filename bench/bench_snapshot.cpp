#include "Foundation/SystemClock.h"
#include "Harness/Comparison.h"
#include "Harness/WorkspaceGenerator.h"
#include "RapidJsonEncoder.h"
#include "Store/SnapshotCodec.h"
#include "Store/WorkspaceStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace
{
constexpr qsizetype megabyte = 1'000'000;

void fail(const char *what)
{
    std::fprintf(stderr, "bench_snapshot: %s\n", what);
    std::exit(2);
}

/// Merges what the round before has freed, which would otherwise be done, and timed, within the next one.
void settleHeap()
{
    // Any call of mallopt does so first.
    ::mallopt(M_PERTURB, 0);
}

void benchLoad(Comparison &comparison, const QString &size, int rounds, const QString &path,
               const QByteArray &bytes)
{
    const SystemClock clock;
    const auto times = Comparison::alternate(
        rounds,
        [&] {
            WorkspaceFile file({.path = path, .rescueFolder = {}, .now = [&clock] { return clock.now(); }});
            WorkspaceFile::Loaded loaded;
            settleHeap();
            return timed([&] { loaded = file.load(); });
        },
        [&] {
            QJsonDocument document;
            settleHeap();
            return timed([&] { document = QJsonDocument::fromJson(bytes); });
        });
    comparison.timeAtMost(QStringLiteral("load %1, against QJsonDocument::fromJson").arg(size),
                          Comparison::best(times.ours), Comparison::best(times.baseline), 0.3);
}

void benchEncode(Comparison &comparison, const QString &size, int rounds, const Snapshot &workspace)
{
    RapidJsonEncoder rapidJson(workspace);
    const qsizetype bytes = SnapshotCodec::encode(workspace).size();
    QByteArray json(bytes, Qt::Uninitialized);
    const auto times = Comparison::alternate(
        rounds,
        [&] {
            char *to = json.data();
            return timed([&] {
                SnapshotCodec::encode(workspace,
                                      [&](QByteArrayView piece) { to = std::ranges::copy(piece, to).out; });
            });
        },
        [&] {
            std::optional<rapidjson::StringBuffer> json;
            return timed([&] { json.emplace(rapidJson.encode(std::size_t(bytes + bytes / 16))); });
        });
    comparison.throughputAtLeast(QStringLiteral("encode %1, against a RapidJSON writer").arg(size),
                                 Comparison::best(times.ours), Comparison::best(times.baseline), 0.8);
}

/// What a save can't do without.
void saveBare(const Snapshot &workspace, const QByteArray &folder)
{
    const QByteArray path = folder + "/bare.json", temporary = path + ".new";
    const QByteArray json = SnapshotCodec::encode(workspace);
    const int file = ::open(temporary.constData(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
    if (::write(file, json.constData(), std::size_t(json.size())) != json.size() || ::fsync(file) != 0)
        fail("cannot write");
    ::close(file);
    if (::rename(temporary.constData(), path.constData()) != 0)
        fail("cannot rename");
    const int directory = ::open(folder.constData(), O_RDONLY | O_DIRECTORY);
    ::fsync(directory);
    ::close(directory);
}

/// Figures of the process in kilobytes, such as VmRSS.
double processFigure(const QByteArray &name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray &line : status.readAll().split('\n'))
            if (line.startsWith(name + ':'))
                return line.sliced(name.size() + 1).simplified().split(' ').first().toDouble();
    fail("the system tells nothing of its memory");
    return 0;
}

/// From now on VmHWM is counted anew.
void forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write("5") != 1)
        fail("cannot forget the peak of memory");
}

template <typename Record>
void touch(WorkspaceStore &store)
{
    const QList<Record> &records = store.list<Record>().all();
    store.change<Record>(records.at(records.size() / 2).id,
                         [](Record &record) { record.updatedDate += std::chrono::seconds(1); });
}

/// The longest that the main thread is busy with a save: with its start, its end, or a change of a record
/// that the save is about to write.
void benchBlocking(Comparison &comparison, const QString &size, int rounds, WorkspaceStore &store,
                   qsizetype fileSize)
{
    QList<Comparison::Duration> longest;
    double memory = 0;
    // The first change of a list makes its index.
    touch<TaskItem>(store), touch<Page>(store), touch<DBRow>(store);
    store.saveNow();
    for (int round = 0; round < rounds; ++round) {
        const double before = processFigure("VmRSS");
        forgetPeak();
        touch<TaskItem>(store);
        auto worst = timed([&] { store.saveSoon(); });
        // What is changed now is still being written.
        worst = std::max(worst, timed([&] { touch<DBRow>(store); }));
        worst = std::max(worst, timed([&] { touch<TaskItem>(store); }));
        worst = std::max(worst, timed([&] { touch<Page>(store); }));
        for (int wait = 0; wait < 100; ++wait) {
            QThread::msleep(10);
            worst = std::max(worst, timed([] { QCoreApplication::processEvents(); }));
        }
        longest.append(worst);
        memory = std::max(memory, processFigure("VmHWM") - before);
        store.saveNow();
    }
    comparison.timeUnder(QStringLiteral("save %1, blocks the window").arg(size),
                         Comparison::quantile(longest, 0.5), Comparison::quantile(longest, 1),
                         std::chrono::milliseconds(4));
    comparison.figureAtMost(QStringLiteral("save %1, further memory against the file").arg(size),
                            QStringLiteral("MB"), memory / 1024, double(fileSize) / megabyte, 0.3);
}

void benchSave(Comparison &comparison, const QString &size, int rounds, const QString &path,
               const Snapshot &workspace, qsizetype fileSize)
{
    const SystemClock clock;
    WorkspaceStore store({.filePath = path, .clock = &clock, .saveDelay = std::chrono::hours(1)});
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const auto times = Comparison::alternate(
        rounds,
        [&] {
            touch<TaskItem>(store);
            return timed([&] { store.saveNow(); });
        },
        [&] { return timed([&] { saveBare(workspace, folder); }); });
    comparison.timeAtMost(QStringLiteral("save %1, against bare system calls").arg(size),
                          Comparison::quantile(times.ours, 0.5), Comparison::quantile(times.baseline, 0.5),
                          1.5);
    benchBlocking(comparison, size, std::min(rounds, 5), store, fileSize);
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    // Beside the program, since the temporary folder may lie in memory.
    const QTemporaryDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/workspace-XXXXXX"));
    const QString path = folder.filePath(QStringLiteral("workspace.json"));
    Comparison comparison;
    for (const auto &[megabytes, rounds] : {std::pair(1, 41), std::pair(10, 21), std::pair(64, 7)}) {
        const QString size = QStringLiteral("%1 MB").arg(megabytes);
        const Snapshot generated = WorkspaceGenerator::ofFileSize(megabytes * megabyte);
        const QByteArray bytes = SnapshotCodec::encode(generated);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
            fail("cannot prepare the workspace file");
        // Records lie in memory as after a start of the program.
        const Snapshot workspace = SnapshotCodec::decode(bytes, {}, &QUuid::createUuid).value();
        if (workspace != generated)
            fail("the workspace does not survive its own file");
        benchLoad(comparison, size, rounds, path, bytes);
        benchEncode(comparison, size, rounds, workspace);
        benchSave(comparison, size, rounds, path, workspace, bytes.size());
    }
    return comparison.exitCode();
}
