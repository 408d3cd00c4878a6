#include "Features/Shell/SidebarViewModel.h"
#include "Features/Tasks/TasksViewModel.h"
#include "Foundation/SystemClock.h"
#include "Harness/Comparison.h"
#include "Harness/WorkspaceGenerator.h"
#include "Session/OrvelSession.h"
#include "Store/PageOperations.h"
#include "Store/SnapshotCodec.h"
#include "Store/TaskOperations.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace
{
/// A workspace with the view models that look at it while the Tasks screen is shown.
class Desk
{
public:
    Desk(const QString &path, const Snapshot &workspace) : m_store(openStore(path, workspace))
    {
        m_task = TaskOperations::create(*m_store, QStringLiteral("A task"), TaskPriority::medium, {});
        m_session.emplace(m_store.get(), &m_ui);
        m_tasks.setSession(&*m_session);
        m_sidebar.setSession(&*m_session);
        QCoreApplication::processEvents();
    }

    /// One key typed into the title of a task, to the moment when nothing is left to do.
    Comparison::Duration typeKey()
    {
        const QString title = m_store->tasks().first(m_task)->title + u'x';
        return timed([&] {
            TaskOperations::rename(*m_store, m_task, title);
            QCoreApplication::processEvents();
        });
    }

    /// The slowest of what is done to a list of dated tasks: finishing one, adding, deleting, another filter.
    Comparison::Duration changeList()
    {
        const auto step = [this](const std::function<void()> &act) {
            return timed([&] {
                act();
                QCoreApplication::processEvents();
            });
        };
        const auto finished = step([&] { TaskOperations::cycleStatus(*m_store, m_task); });
        const auto added = step([&] {
            m_tasks.setTitle(QStringLiteral("Another"));
            m_tasks.addTask();
        });
        const auto erased =
            step([&] { TaskOperations::remove(*m_store, m_store->tasks().all().constLast().id); });
        const auto filtered = step([&] {
            m_tasks.setFilter(m_tasks.filter() == u"all" ? QStringLiteral("open") : QStringLiteral("all"));
        });
        return std::max({finished, added, erased, filtered});
    }

    /// A change of the pages, to the moment when the sidebar shows it.
    Comparison::Duration changePages(const std::function<void(WorkspaceStore &)> &change)
    {
        return timed([&] {
            change(*m_store);
            QCoreApplication::processEvents();
        });
    }

private:
    std::unique_ptr<WorkspaceStore> openStore(const QString &path, const Snapshot &workspace)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(SnapshotCodec::encode(workspace)) < 0) {
            std::fprintf(stderr, "bench_key: cannot prepare the workspace\n");
            std::exit(2);
        }
        file.close();
        // The save comes after the last key, so none falls into the measurement.
        return std::make_unique<WorkspaceStore>(
            WorkspaceStore::Options{path, &m_clock, std::chrono::hours(1)});
    }

    SystemClock m_clock;
    UIState m_ui;
    std::unique_ptr<WorkspaceStore> m_store;
    std::optional<OrvelSession> m_session;
    TasksViewModel m_tasks;
    SidebarViewModel m_sidebar;
    QUuid m_task;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    Desk full(folder.filePath(QStringLiteral("full.json")),
              WorkspaceGenerator::ofTasksAndPages(10'000, 10'000));
    Desk empty(folder.filePath(QStringLiteral("empty.json")), Snapshot());
    const auto times =
        Comparison::alternate(300, [&] { return full.typeKey(); }, [&] { return empty.typeKey(); });
    Comparison comparison;
    comparison.timeUnder(
        QStringLiteral("key into a task title, 10,000 tasks and pages, against none, 95 of 100"),
        Comparison::quantile(times.ours, 0.95), Comparison::quantile(times.baseline, 0.95),
        std::chrono::milliseconds(8));
    const auto changes =
        Comparison::alternate(100, [&] { return full.changeList(); }, [&] { return empty.changeList(); });
    comparison.timeUnder(
        QStringLiteral("finish, add, delete or filter among 10,000 dated tasks, against none, 95 of 100"),
        Comparison::quantile(changes.ours, 0.95), Comparison::quantile(changes.baseline, 0.95),
        std::chrono::milliseconds(8));

    QUuid page;
    const std::pair<const char *, std::function<void(WorkspaceStore &)>> pageChanges[]{
        {"add a page",
         [&page](WorkspaceStore &store) { page = PageOperations::create(store, PageKind::page); }},
        {"rename a page",
         [&page](WorkspaceStore &store) {
             PageOperations::rename(store, page, store.pages().first(page)->title + u'x');
         }},
        {"delete a page",
         [&page](WorkspaceStore &store) {
             PageOperations::remove(store, page);
             page = store.pages().all().last().id;
         }},
        {"change the accent", [](WorkspaceStore &store) {
             store.changeSettings(
                 [](AppSettings &settings) { settings.theme.accent = nextCase(settings.theme.accent); });
         }}};
    for (const auto &[name, change] : pageChanges) {
        const auto each = Comparison::alternate(
            50, [&] { return full.changePages(change); }, [] { return Comparison::Duration(); });
        comparison.timeUnder(
            QStringLiteral("%1, 10,000 pages in the sidebar, 95 of 100").arg(QLatin1String(name)),
            Comparison::quantile(each.ours, 0.95), Comparison::Duration(), std::chrono::milliseconds(8));
    }
    return comparison.exitCode();
}
