#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>

namespace
{
constexpr int presses = 40;

/// From the screen's first field past the form and the filters to the rows.
void goToRows(Scene &scene)
{
    for (int i = 0; i < 40 && scene.press(Qt::Key_Tab) < Comparison::Duration::max(); ++i) {
        if (QString::fromLatin1(scene.focusItem()->metaObject()->className()).startsWith(u"TaskRow"))
            break;
    }
}

/// The first Page Down beyond the rows that the screen opened with: no row can be used again.
Comparison::Duration firstPageDown(Scene &scene)
{
    scene.open();
    goToRows(scene);
    scene.press(Qt::Key_PageDown);
    return scene.press(Qt::Key_PageDown);
}

/// Page Down from the first row on: each press shows a screenful of new rows.
Comparison::Duration pageDown(Scene &scene)
{
    static int count = 0;
    if (count++ % presses == 0) {
        scene.press(Qt::Key_Home);
        scene.press(Qt::Key_Home);
    }
    return scene.press(Qt::Key_PageDown);
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QByteArray screen = "import Orvel.Tasks\nTasksView { focus: true }";
    Scene many(WorkspaceGenerator::ofTasksAndPages(10'000, 0), screen);
    Scene few(WorkspaceGenerator::ofTasksAndPages(1, 0), screen);
    many.open();
    few.open();
    goToRows(many);
    const auto times = Comparison::alternate(
        presses, [&] { return pageDown(many); }, [&] { return few.press(Qt::Key_Down); });
    Comparison comparison;
    for (const int share : {50, 95})
        comparison.timeUnder(
            QStringLiteral("Page Down in 10,000 tasks, against a key that makes no row, %1 of 100")
                .arg(share),
            Comparison::quantile(times.ours, share / 100.0),
            Comparison::quantile(times.baseline, share / 100.0), Comparison::Duration(16));
    const auto first = Comparison::alternate(
        20, [&] { return firstPageDown(many); }, [&] { return few.press(Qt::Key_Down); });
    comparison.timeUnder(QStringLiteral("the first Page Down after the screen opened, 50 of 100"),
                         Comparison::quantile(first.ours, 0.5), Comparison::quantile(first.baseline, 0.5),
                         Comparison::Duration(16));
    return comparison.exitCode();
}
