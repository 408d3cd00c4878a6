// How long undo and redo take on a workspace of 10 MB and on very many records, without a screen.
#include "Foundation/SystemClock.h"
#include "Harness/Comparison.h"
#include "Harness/WorkspaceGenerator.h"
#include "Store/PageOperations.h"
#include "Store/SnapshotCodec.h"
#include "Store/TaskOperations.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace
{
class Workspace
{
public:
    explicit Workspace(const Snapshot &snapshot)
    {
        const QString path = m_folder.filePath(QStringLiteral("workspace.json"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(SnapshotCodec::encode(snapshot)) < 0) {
            std::fprintf(stderr, "bench_undo: cannot prepare the workspace\n");
            std::exit(2);
        }
        file.close();
        // The save comes after the last step, so none falls into the measurement.
        m_store =
            std::make_unique<WorkspaceStore>(WorkspaceStore::Options{path, &m_clock, std::chrono::hours(1)});
    }

    WorkspaceStore &store() { return *m_store; }

    /// The slower one of undo and redo of the step that `act` does.
    Comparison::Duration undoAndRedo(const std::function<void()> &act)
    {
        act();
        const auto undo = timed([this] { m_store->undo(); });
        const auto redo = timed([this] { m_store->redo(); });
        m_store->undo();
        return std::max(undo, redo);
    }

    /// Undo and redo of a typed key, a deleted page and a deleted folder, each somewhere in the middle.
    Comparison::Duration anyStep()
    {
        if (m_store->pages().isEmpty())
            return {};
        const QUuid page = m_store->pages().at(m_store->pages().size() / 2).id;
        const auto typed =
            undoAndRedo([&] { PageOperations::rename(*m_store, page, QStringLiteral("Renamed")); });
        const auto erased = undoAndRedo([&] { PageOperations::remove(*m_store, page); });
        const QUuid folder = m_store->folders().isEmpty() ? QUuid() : m_store->folders().at(0).id;
        const auto folded = undoAndRedo([&] { FolderOperations::remove(*m_store, folder); });
        return std::max({typed, erased, folded});
    }

    Comparison::Duration manyTasks(qsizetype count)
    {
        QSet<QUuid> ids;
        for (qsizetype i = 0; i < count; ++i)
            ids.insert(m_store->tasks().at(i * 2).id);
        return undoAndRedo([&] { m_store->erase<TaskItem>(ids); });
    }

private:
    QTemporaryDir m_folder;
    SystemClock m_clock;
    std::unique_ptr<WorkspaceStore> m_store;
};
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Comparison comparison;
    Workspace large(WorkspaceGenerator::ofFileSize(10'000'000));
    Workspace small(WorkspaceGenerator::ofFileSize(100'000));
    const auto steps =
        Comparison::alternate(50, [&] { return large.anyStep(); }, [&] { return small.anyStep(); });
    comparison.timeUnder(
        QStringLiteral("undo or redo of any step, 10 MB workspace, against 100 KB, 95 of 100"),
        Comparison::quantile(steps.ours, 0.95), Comparison::quantile(steps.baseline, 0.95),
        std::chrono::milliseconds(8));

    Workspace many(WorkspaceGenerator::ofTasksAndPages(20'000, 10));
    Workspace few(WorkspaceGenerator::ofTasksAndPages(2'000, 10));
    const auto erased = Comparison::alternate(
        10, [&] { return many.manyTasks(10'000); }, [&] { return few.manyTasks(1'000); });
    comparison.timeUnder(QStringLiteral("undo or redo of deleting 10,000 tasks, against 1,000, 95 of 100"),
                         Comparison::quantile(erased.ours, 0.95), Comparison::quantile(erased.baseline, 0.95),
                         std::chrono::milliseconds(50));
    return comparison.exitCode();
}
