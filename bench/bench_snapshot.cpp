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
    const Timestamp now =
        std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now());
    const auto times = Comparison::alternate(
        rounds,
        [&] {
            std::expected<Snapshot, QString> snapshot;
            settleHeap();
            return timed([&] { snapshot = SnapshotCodec::decodeFile(path, now, &QUuid::createUuid); });
        },
        [&] {
            QJsonDocument document;
            settleHeap();
            return timed([&] { document = QJsonDocument::fromJson(bytes); });
        });
    comparison.timeAtMost(QStringLiteral("load %1, against QJsonDocument::fromJson").arg(size),
                          Comparison::best(times.ours), Comparison::best(times.baseline), 0.35);
}

void benchEncode(Comparison &comparison, const QString &size, int rounds, const Snapshot &workspace)
{
    RapidJsonEncoder rapidJson(workspace);
    const qsizetype bytes = SnapshotCodec::encode(workspace).size();
    const auto times = Comparison::alternate(
        rounds,
        [&] {
            QByteArray json;
            return timed([&] { json = SnapshotCodec::encode(workspace); });
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

void benchSave(Comparison &comparison, const QString &size, int rounds, const QString &path,
               const Snapshot &workspace)
{
    const SystemClock clock;
    WorkspaceStore store({.filePath = path, .clock = &clock});
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const auto times = Comparison::alternate(
        rounds, [&] { return timed([&] { store.saveNow(); }); },
        [&] { return timed([&] { saveBare(workspace, folder); }); });
    comparison.timeAtMost(QStringLiteral("save %1, against bare system calls").arg(size),
                          Comparison::quantile(times.ours, 0.5), Comparison::quantile(times.baseline, 0.5),
                          1.5);
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
        benchSave(comparison, size, rounds, path, workspace);
    }
    return comparison.exitCode();
}
