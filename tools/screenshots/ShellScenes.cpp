#include "SampleWorkspace.h"
#include "Scenes.h"

namespace
{
Look navigation(NavigationStyle style)
{
    return [style](AppSettings &settings) { settings.theme.navigation = style; };
}

/// The first run at one of its steps.
Picture onboardingPicture(const QString &name, int step, QSize size, const Look &look,
                          const QByteArray &choose = {})
{
    return {QStringLiteral("onboarding-") + name,
            "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Onboarding\n"
            "Item { OVBackground { anchors.fill: parent }\n"
            "OnboardingView { anchors.fill: parent; focus: true; Component.onCompleted: { " +
                choose + "; while (choices.step < " + QByteArray::number(step) + ") choices.goNext() } } }",
            size, [](WorkspaceStore &, UIState &) {}, look};
}
} // namespace

QList<Picture> shellPictures()
{
    const auto on = [](const char *place, void (*fill)(WorkspaceStore &)) {
        return [place, fill](WorkspaceStore &store, UIState &ui) {
            fill(store);
            ui.select(QString::fromLatin1(place));
        };
    };
    const Content sample = on("tasks", SampleWorkspace::fill);
    const Content crowd = on("dashboard", SampleWorkspace::crowd);
    const Content empty = on("today", [](WorkspaceStore &) {});
    const Content missing = [](WorkspaceStore &store, UIState &ui) {
        SampleWorkspace::fill(store);
        ui.selectPage(QUuid::createUuid());
    };
    QList<Picture> pictures;
    const auto add = [&](const QByteArray &name, QSize size, const Content &content, const Look &look) {
        pictures.append(
            {QStringLiteral("shell-") + QString::fromLatin1(name), windowPage, size, content, look});
    };
    for (const auto &[name, look] : looks())
        add(name.toLatin1(), windowSize, sample, look);
    for (const EnumCase<NavigationStyle> &style : enumCases<NavigationStyle>()) {
        const QByteArray name(style.raw.data(), qsizetype(style.raw.size()));
        const Look look = both(light, navigation(style.value));
        add(name + "-light", windowSize, sample, look);
        add(name + "-dark", windowSize, sample, both(dark, navigation(style.value)));
        add(name + "-small-huge", smallSize, crowd, both(look, huge));
    }
    add("empty", windowSize, empty, light);
    add("crowded", windowSize, crowd, light);
    add("crowded-small", smallSize, crowd, dark);
    add("missing", windowSize, missing, light);
    add("compact", windowSize, sample, [](AppSettings &settings) {
        light(settings);
        settings.theme.compactSidebar = true;
        settings.theme.accentIcons = true;
        settings.theme.accent = AccentPalette::blue;
    });
    add("no-icons", windowSize, sample, [](AppSettings &settings) {
        light(settings);
        settings.sidebarShowsIcons = false;
    });
    return pictures;
}

QList<Picture> palettePictures()
{
    const auto over = [](void (*fill)(WorkspaceStore &), void (UIState::*present)(bool)) {
        return [fill, present](WorkspaceStore &store, UIState &ui) {
            fill(store);
            ui.select(QStringLiteral("tasks"));
            (ui.*present)(true);
        };
    };
    const Content palette = over(SampleWorkspace::fill, &UIState::setSearchPresented);
    const Content crowd = over(SampleWorkspace::crowd, &UIState::setSearchPresented);
    const Content sheet = over(SampleWorkspace::fill, &UIState::setShortcutsPresented);
    QList<Picture> pictures;
    const auto add = [&](const QString &name, const Content &content, QSize size, const Look &look,
                         const QString &typed = {}) {
        pictures.append({name, windowPage, size, content, look, typed});
    };
    for (const auto &[name, look] : looks()) {
        const QString found = QStringLiteral("re");
        add(QStringLiteral("palette-results-") + name, palette, windowSize, look, found);
        add(QStringLiteral("palette-start-") + name, palette, windowSize, look);
        add(QStringLiteral("shortcuts-") + name, sheet, windowSize, look);
    }
    const Look smallHuge = both(light, huge);
    add(QStringLiteral("palette-nothing"), palette, windowSize, light, QStringLiteral("meadow"));
    add(QStringLiteral("palette-nothing-dark"), palette, smallSize, dark, QStringLiteral("meadow"));
    add(QStringLiteral("palette-long"), crowd, windowSize, light, QStringLiteral("on"));
    add(QStringLiteral("palette-long-small-huge"), crowd, smallSize, smallHuge, QStringLiteral("on"));
    add(QStringLiteral("palette-start-small"), palette, smallSize, light);
    add(QStringLiteral("palette-start-small-huge"), palette, smallSize, smallHuge);
    add(QStringLiteral("shortcuts-filtered"), sheet, windowSize, light, QStringLiteral("ctrl shift"));
    add(QStringLiteral("shortcuts-none-dark"), sheet, windowSize, dark, QStringLiteral("meadow"));
    add(QStringLiteral("shortcuts-small"), sheet, smallSize, dark);
    add(QStringLiteral("shortcuts-small-huge"), sheet, smallSize, smallHuge);
    return pictures;
}

QList<Picture> onboardingPictures()
{
    const QByteArray chosen =
        "choices.name = 'Zoë'; choices.workspaceName = 'Studio'; "
        "choices.workspaceIcon = '🌱'; choices.toggleModule(8); choices.toggleModule(9)";
    QList<Picture> pictures;
    const QStringList steps{QStringLiteral("welcome"), QStringLiteral("profile"), QStringLiteral("modules"),
                            QStringLiteral("starter"), QStringLiteral("look"),    QStringLiteral("ready")};
    for (int step = 0; step < steps.size(); ++step) {
        const QString &name = steps.at(step);
        for (const auto &[lookName, look] : looks())
            pictures.append(onboardingPicture(name + u'-' + lookName, step, windowSize, look, chosen));
        pictures.append(
            onboardingPicture(name + QStringLiteral("-small-huge"), step, smallSize, both(light, huge),
                              "choices.clearModules(); choices.name = 'A rather long name '.repeat(12)"));
    }
    return pictures;
}
