#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"
#include "Support/OVDate.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
Snapshot withHabits(Snapshot workspace, int count, int days)
{
    workspace.list<Habit>().clear();
    const QDate today = QDate::currentDate();
    for (int i = 0; i < count; ++i) {
        Habit habit{.id = QUuid::createUuid(), .name = QStringLiteral("Habit %1").arg(i), .targetPerWeek = 7};
        for (int day = 1; day <= days; ++day)
            habit.completions.insert(OVDate::dayKey(today.addDays(-day)));
        workspace.list<Habit>().append(habit);
    }
    for (TaskItem &task : workspace.list<TaskItem>())
        if (task.status == TaskStatus::done)
            task.completedDate = toTimestamp(QDateTime::currentDateTimeUtc());
    return workspace;
}

/// A screen with what its user does again and again; each turn is one key or one click.
class PracticeScene : public Scene
{
public:
    using Step = std::function<Comparison::Duration(PracticeScene &)>;

    PracticeScene(const Snapshot &workspace, const QByteArray &source, const QString &begin)
        : Scene(workspace, source)
    {
        open();
        for (int i = 0; i < 60 && !focusName().contains(begin); ++i)
            press(Qt::Key_Tab);
        if (!focusName().contains(begin)) {
            std::fprintf(stderr, "bench_practicekey: \"%s\" is not reached\n", qPrintable(begin));
            std::exit(2);
        }
    }

    QString focusName() const
    {
        if (!focusItem())
            return {};
        for (const QObject *child : focusItem()->children())
            if (child->inherits("QQuickAccessibleAttached"))
                return child->property("name").toString();
        return {};
    }

    Comparison::Duration take(const QList<Step> &steps) { return steps.at(m_turn++ % steps.size())(*this); }

private:
    int m_turn = 0;
};

PracticeScene::Step key(int key, const QString &text = {})
{
    return [key, text](PracticeScene &scene) { return scene.press(key, text); };
}

PracticeScene::Step click(const QString &text)
{
    return [text](PracticeScene &scene) {
        const auto time = scene.click(text);
        if (!time) {
            std::fprintf(stderr, "bench_practicekey: there is no \"%s\"\n", qPrintable(text));
            std::exit(2);
        }
        return *time;
    };
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    struct Work {
        QString name;
        QByteArray source;
        /// A part of the name of what has the focus when the steps begin.
        QString begin;
        QList<PracticeScene::Step> steps;
        /// Whether they have done something.
        bool (*isDone)(PracticeScene &);
    };
    const QList<Work> works{
        {QStringLiteral("Focus"),
         "import Orvel.Focus\nFocusView { focus: true }",
         QStringLiteral("Start"),
         {key(Qt::Key_2), key(Qt::Key_Space), key(Qt::Key_L), key(Qt::Key_Space), key(Qt::Key_Space),
          click(QStringLiteral("Reset")), click(QStringLiteral("45 min"))},
         [](PracticeScene &scene) { return scene.desk().session->focus()->sessions() > 0; }},
        {QStringLiteral("Habits"),
         "import Orvel.Habits\nHabitsView { focus: true }",
         QStringLiteral("this week"),
         {key(Qt::Key_Space), key(Qt::Key_Right), key(Qt::Key_Space), key(Qt::Key_Left), key(Qt::Key_Down),
          click(QStringLiteral("Mark done"))},
         [](PracticeScene &scene) {
             const QString today = OVDate::dayKey(QDate::currentDate());
             return std::ranges::any_of(scene.desk().store->list<Habit>(), [&](const Habit &habit) {
                 return habit.completions.contains(today);
             });
         }},
        {QStringLiteral("Insights"),
         "import Orvel.Insights\nInsightsView { focus: true }",
         QStringLiteral("To do,"),
         {key(Qt::Key_Down), key(Qt::Key_Tab), key(Qt::Key_Tab), key(Qt::Key_Right), key(Qt::Key_Backtab),
          key(Qt::Key_Backtab)},
         [](PracticeScene &scene) { return !scene.focusName().contains(u"To do,"); }},
        {QStringLiteral("the tray's panel"),
         "import QtQuick\nimport Orvel.MenuBar\nMenuBarPanel { focus: true; Component.onCompleted: begin() }",
         QStringLiteral("Quick add a task"),
         {key(Qt::Key_X, QStringLiteral("x")), key(Qt::Key_Return)},
         [](PracticeScene &scene) {
             return std::ranges::any_of(scene.desk().store->tasks(),
                                        [](const TaskItem &task) { return task.title == u"x"; });
         }},
    };
    const Snapshot full = withHabits(WorkspaceGenerator::ofBusyYears(), 200, 3650);
    const Snapshot small = withHabits(WorkspaceGenerator::ofTasksAndPages(10, 10), 2, 10);
    Comparison comparison;
    for (const Work &work : works) {
        PracticeScene many(full, work.source, work.begin);
        PracticeScene few(small, work.source, work.begin);
        const auto times = Comparison::alternate(
            200, [&] { return many.take(work.steps); }, [&] { return few.take(work.steps); });
        comparison.timeUnder(
            QStringLiteral("key or click in %1 over 10 MB, against ten tasks, 95 of 100").arg(work.name),
            Comparison::quantile(times.ours, 0.95), Comparison::quantile(times.baseline, 0.95),
            Comparison::Duration(8));
        if (!work.isDone(many)) {
            std::fprintf(stderr, "bench_practicekey: the keys have not arrived\n");
            return 2;
        }
    }
    return comparison.exitCode();
}
