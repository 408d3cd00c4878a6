#include "SampleMonth.h"
#include "SamplePractice.h"
#include "Scenes.h"

using namespace Qt::StringLiterals;

QList<Picture> practicePictures()
{
    const Content none = [](WorkspaceStore &, UIState &) {};
    const auto with = [](void (*fill)(WorkspaceStore &)) {
        return [fill](WorkspaceStore &store, UIState &) { fill(store); };
    };
    const QByteArray panel =
        "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.MenuBar\n"
        "Rectangle { color: \"#808080\"; MenuBarPanel { anchors.centerIn: parent; focus: true; "
        "width: implicitWidth; Component.onCompleted: begin() } }";
    const QByteArray start = "view.viewModel.linkTask(0); view.viewModel.toggleRunning(); later.start()";
    const QByteArray pause = "view.viewModel.toggleRunning(); later.resumed = false; later.start()";
    const QByteArray habits = screenPage("Habits", "HabitsView", {});
    const QByteArray insights = screenPage("Insights", "InsightsView", {});
    const QSize tall(1240, 1900);
    const auto sample = with(SampleMonth::fill);
    QList<Picture> pictures;
    for (const auto &[lookName, look] : looks() + QList{std::pair(u"small-huge"_s, both(light, huge))}) {
        const bool isSmall = lookName == u"small-huge";
        const auto add = [&, &lookName = lookName, &look = look](const QString &name, const QByteArray &page,
                                                                 QSize size, const Content &content) {
            pictures.append(
                {u"practice-"_s + name + u'-' + lookName, page, isSmall ? smallSize : size, content, look});
        };
        add(u"focus-ready"_s, screenPage("Focus", "FocusView", {}), windowSize, sample);
        add(u"focus-running"_s, screenPage("Focus", "FocusView", start), windowSize, sample);
        add(u"focus-paused"_s, screenPage("Focus", "FocusView", pause), windowSize, none);
        add(u"habits-none"_s, habits, windowSize, none);
        add(u"habits-three"_s, habits, windowSize, with(SamplePractice::threeHabits));
        add(u"habits-forty"_s, habits, windowSize, with(SamplePractice::fortyHabits));
        add(u"habits-composer"_s, screenPage("Habits", "HabitsView", "view.compose()"), windowSize,
            with(SamplePractice::threeHabits));
        add(u"insights-empty"_s, insights, {1240, 1200}, none);
        add(u"insights-ordinary"_s, insights, {1240, 1200}, with(SamplePractice::ordinary));
        add(u"insights-single"_s, insights, {1240, 1200}, with(SamplePractice::single));
        add(u"panel"_s, panel, {480, 860}, sample);
        add(u"panel-nothing-due"_s, panel, {480, 860}, none);
    }
    pictures.append({u"practice-insights-crowded"_s, insights, tall, with(SamplePractice::crowded), light});
    pictures.append(
        {u"practice-insights-huge-values"_s, insights, {1240, 1200}, with(SamplePractice::huge), light});
    return pictures;
}
