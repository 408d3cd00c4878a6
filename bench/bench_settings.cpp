#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>

#include <array>
#include <cstdio>

namespace
{
struct Change {
    const char *name;
    void (*edit)(AppSettings &);
};

constexpr int rounds = 60;

template <typename Enum>
Enum nextCase(Enum value)
{
    return enumCases<Enum>().at((std::size_t(value) + 1) % enumCases<Enum>().size()).value;
}

/// Each makes another choice each time.
constexpr std::array changes{
    Change{"an accent",
           [](AppSettings &settings) { settings.theme.accent = nextCase(settings.theme.accent); }},
    Change{"a background",
           [](AppSettings &settings) { settings.theme.canvas = nextCase(settings.theme.canvas); }},
    Change{"light and dark",
           [](AppSettings &settings) {
               const bool isDark = settings.appearance == AppearanceMode::dark;
               settings.appearance = isDark ? AppearanceMode::light : AppearanceMode::dark;
           }},
    Change{"the corners",
           [](AppSettings &settings) { settings.theme.corner = nextCase(settings.theme.corner); }},
    Change{"the density",
           [](AppSettings &settings) { settings.theme.density = nextCase(settings.theme.density); }},
    Change{"the font", [](AppSettings &settings) { settings.theme.font = nextCase(settings.theme.font); }},
    Change{
        "the size of text",
        [](AppSettings &settings) { settings.theme.fontScale = settings.theme.fontScale > 1 ? 1.0 : 1.25; }},
    Change{"ink mode", [](AppSettings &settings) { settings.inkMode = !settings.inkMode; }},
};

class SettingsScene : public Scene
{
public:
    explicit SettingsScene(const Snapshot &workspace)
        : Scene(workspace, "import Orvel.Settings\nSettingsView { focus: true }")
    {
    }

    Comparison::Duration scrollKey() { return press(m_count++ % 8 < 4 ? Qt::Key_Down : Qt::Key_Up); }
    Comparison::Duration tab() { return press(Qt::Key_Tab); }

private:
    int m_count = 0;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Snapshot workspace = WorkspaceGenerator::ofBusyYears();
    const Snapshot small = WorkspaceGenerator::ofTasksAndPages(100, 0);
    SettingsScene settings(workspace);
    SettingsScene few(small);
    Comparison comparison;
    const auto limit = [&](const QString &what, const Comparison::Times &times, double share, double most) {
        comparison.timeUnder(QStringLiteral("%1, %2 of 100").arg(what).arg(qRound(share * 100)),
                             Comparison::quantile(times.ours, share),
                             Comparison::quantile(times.baseline, share), Comparison::Duration(most));
    };
    limit(QStringLiteral("open the settings over 10 MB, against a small workspace"),
          Comparison::alternate(20, [&] { return settings.open(); }, [&] { return few.open(); }), 0.5, 100);
    limit(QStringLiteral("scroll the settings by a key, over 10 MB against a small workspace"),
          Comparison::alternate(
              rounds, [&] { return settings.scrollKey(); }, [&] { return few.scrollKey(); }),
          0.95, 8);
    limit(QStringLiteral("go to the next setting by Tab, over 10 MB against a small workspace"),
          Comparison::alternate(rounds, [&] { return settings.tab(); }, [&] { return few.tab(); }), 0.95, 8);

    // The theme is that of both screens, so the other one sleeps while one is measured.
    few.close();
    Scene tasks(small, "import Orvel.Tasks\nTasksView { focus: true }");
    for (const Change &change : changes) {
        tasks.close();
        settings.open();
        Comparison::Times times;
        for (int i = 0; i < rounds; ++i)
            times.ours.append(settings.change(change.edit));
        settings.close();
        tasks.open();
        for (int i = 0; i < rounds; ++i)
            times.baseline.append(tasks.change(change.edit));
        limit(QStringLiteral("change %1 on the settings, against a list of tasks")
                  .arg(QLatin1String(change.name)),
              times, 0.95, 1000.0 / 60);
    }
    return comparison.exitCode();
}
