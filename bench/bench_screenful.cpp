#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>

namespace
{
constexpr int presses = 40;

/// Page Down from the first row on: each press makes a screenful of new rows.
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
    // To the rows, past the form and the filters.
    for (int i = 0; i < 40 && many.press(Qt::Key_Tab) < Comparison::Duration::max(); ++i) {
        if (QString::fromLatin1(many.focusItem()->metaObject()->className()).startsWith(u"TaskRow"))
            break;
    }
    const auto times = Comparison::alternate(
        presses, [&] { return pageDown(many); }, [&] { return few.press(Qt::Key_Down); });
    Comparison comparison;
    for (const int share : {50, 95})
        comparison.timeUnder(
            QStringLiteral("Page Down in 10,000 tasks, against a key that makes no row, %1 of 100")
                .arg(share),
            Comparison::quantile(times.ours, share / 100.0),
            Comparison::quantile(times.baseline, share / 100.0), Comparison::Duration(16));
    return comparison.exitCode();
}
