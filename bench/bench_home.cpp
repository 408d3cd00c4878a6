#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
/// Tasks, spread over the projects, and as many pages.
Snapshot workspace(int projects, int records)
{
    Snapshot snapshot = WorkspaceGenerator::ofTasksAndPages(records, records);
    for (int i = 0; i < projects; ++i) {
        Project project;
        project.id = QUuid::createUuid();
        project.name = QStringLiteral("Project %1").arg(i);
        project.icon = QStringLiteral("🎯");
        project.details = QStringLiteral("Everything about it, in a line or two.");
        snapshot.list<Project>().append(project);
    }
    auto &tasks = snapshot.list<TaskItem>();
    for (qsizetype i = 0; i < tasks.size(); ++i)
        tasks[i].projectID = snapshot.list<Project>().at(i % projects).id;
    return snapshot;
}

QByteArray detailOf(const Snapshot &workspace)
{
    return "import Orvel.Projects\nProjectDetailView { focus: true; projectID: \"" +
           workspace.list<Project>().first().id.toByteArray() + "\" }";
}

/// The dashboard with the focus in its quick capture.
class Capture : public Scene
{
public:
    explicit Capture(const Snapshot &workspace)
        : Scene(workspace, "import Orvel.Dashboard\nDashboardView { focus: true }")
    {
        open();
        for (int i = 0; i < 40 && !isReady(); ++i)
            press(Qt::Key_Tab);
    }

    bool isReady() const
    {
        return focusItem() && focusItem()->property("placeholderText").toString() == u"Add a task";
    }
    bool isEmpty() const { return focusItem()->property("length").toInt() == 0; }
    Comparison::Duration typeKey() { return press(Qt::Key_X, QStringLiteral("x")); }
    Comparison::Duration submit()
    {
        typeKey();
        return press(Qt::Key_Return);
    }
};

void compare(Comparison &comparison, const char *what, int rounds, double share, double limit,
             const Comparison::Run &ours, const Comparison::Run &baseline)
{
    const auto times = Comparison::alternate(rounds, ours, baseline);
    comparison.timeUnder(QString::fromUtf8(what), Comparison::quantile(times.ours, share),
                         Comparison::quantile(times.baseline, share), Comparison::Duration(limit));
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Snapshot full = WorkspaceGenerator::ofBusyYears();
    const Snapshot small = workspace(4, 10);
    Comparison comparison;
    const std::pair<const char *, QByteArray> screens[]{
        {"open 200 projects with 10,000 tasks, against 4 with 10, half of the times",
         "import Orvel.Projects\nProjectsView { focus: true }"},
        {"open the dashboard over 10 MB, against 10 tasks and pages, half of the times",
         "import Orvel.Dashboard\nDashboardView { focus: true }"},
        {"open Today over 10 MB, against 10 tasks and pages, half of the times",
         "import Orvel.Today\nTodayView { focus: true }"},
    };
    for (const auto &[what, source] : screens) {
        Scene many(full, source);
        Scene few(small, source);
        compare(comparison, what, 20, 0.5, 100, [&] { return many.open(); }, [&] { return few.open(); });
    }

    Scene busyProject(full, detailOf(full));
    Scene quietProject(small, detailOf(small));
    compare(
        comparison, "open a project of 200 with 10,000 tasks, against one of 4 with 10, half of the times",
        20, 0.5, 100, [&] { return busyProject.open(); }, [&] { return quietProject.open(); });

    Capture many(full);
    Capture few(small);
    if (!many.isReady() || !few.isReady()) {
        std::fprintf(stderr, "bench_home: the quick capture is not reached\n");
        return 2;
    }
    compare(
        comparison, "key into quick capture, 10,000 tasks against 10, 95 of 100", 300, 0.95, 8,
        [&] { return many.typeKey(); }, [&] { return few.typeKey(); });
    compare(
        comparison, "quick capture adds a task to 10,000, against 10, 95 of 100", 100, 0.95, 8,
        [&] { return many.submit(); }, [&] { return few.submit(); });
    if (!many.isEmpty()) {
        std::fprintf(stderr, "bench_home: the keys have not arrived\n");
        return 2;
    }
    return comparison.exitCode();
}
