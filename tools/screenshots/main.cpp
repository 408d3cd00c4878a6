// Draws pages of the program into pictures, in every look.
// usage: orvel-screenshots [--pseudo] FOLDER [BEGINNING OF A NAME]...
// --pseudo draws them in a language whose texts are a third longer.

#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemePresets.h"
#include "SampleDatabases.h"
#include "SampleDecks.h"
#include "SampleMonth.h"
#include "SamplePages.h"
#include "SamplePractice.h"
#include "SampleWorkspace.h"
#include "ScratchWorkspace.h"
#include "Store/PageOperations.h"

#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

#include <functional>

using namespace Qt::StringLiterals;

namespace
{
using Look = std::function<void(AppSettings &)>;
using Content = std::function<void(WorkspaceStore &, UIState &)>;

/// One picture: a page of QML, what lies in the workspace, and how it looks.
struct Picture {
    QString name;
    QByteArray page;
    QSize size;
    Content content;
    Look look;
    /// Typed into what has the focus.
    QString typed = {};
};

constexpr QSize windowSize(1240, 820);
constexpr QSize smallSize(900, 600);

void light(AppSettings &settings)
{
    settings.appearance = AppearanceMode::light;
}

void dark(AppSettings &settings)
{
    settings.appearance = AppearanceMode::dark;
}

void huge(AppSettings &settings)
{
    settings.theme.fontScale = 1.4;
}

Look both(const Look &first, const Look &second)
{
    return [first, second](AppSettings &settings) {
        first(settings);
        second(settings);
    };
}

Look preset(ThemePreset preset)
{
    return [preset](AppSettings &settings) { applyThemePreset(preset, settings.theme); };
}

Look navigation(NavigationStyle style)
{
    return [style](AppSettings &settings) { settings.theme.navigation = style; };
}

QList<std::pair<QString, Look>> looks()
{
    return {
        {QStringLiteral("light"), light},
        {QStringLiteral("dark"), dark},
        {QStringLiteral("ink"), [](AppSettings &settings) { settings.inkMode = true; }},
        {QStringLiteral("aurora"), both(light, preset(ThemePreset::aurora))},
        {QStringLiteral("aurora-dark"), both(dark, preset(ThemePreset::aurora))},
        {QStringLiteral("huge"), both(light, huge)},
    };
}

QList<Picture> galleryPictures()
{
    const QByteArray page = "import Orvel.Gallery\nGallery { }";
    QList<Picture> pictures;
    for (const auto &[name, look] : looks())
        pictures.append({QStringLiteral("gallery-") + name,
                         page,
                         {1240, 1500},
                         [](WorkspaceStore &, UIState &) {},
                         look});
    return pictures;
}

/// The whole window, with the screen that the content selects.
constexpr char windowPage[] =
    "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.App\n"
    "Item { OVBackground { anchors.fill: parent } WorkspaceView { anchors.fill: parent } }";

QList<Picture> tasksPictures()
{
    const auto with = [](void (*fill)(WorkspaceStore &)) {
        return [fill](WorkspaceStore &store, UIState &ui) {
            fill(store);
            ui.select(QStringLiteral("tasks"));
        };
    };
    const Content empty = with([](WorkspaceStore &) {});
    const Content many = with(SampleWorkspace::manyTasks);
    return {
        {QStringLiteral("tasks-empty"), windowPage, windowSize, empty, light},
        {QStringLiteral("tasks-empty-dark"), windowPage, windowSize, empty, dark},
        {QStringLiteral("tasks-many"), windowPage, windowSize, many, light},
        {QStringLiteral("tasks-many-small"), windowPage, smallSize, many, dark},
        {QStringLiteral("tasks-many-small-huge"), windowPage, smallSize, many, both(light, huge)},
    };
}

QList<Picture> notesPictures()
{
    const auto with = [](int count) {
        return [count](WorkspaceStore &store, UIState &ui) {
            SampleWorkspace::notes(store, count);
            ui.select(QStringLiteral("notes"));
        };
    };
    const QByteArray alone = "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Notes\n"
                             "Item { OVBackground { anchors.fill: parent }\n"
                             "NotesView { anchors.fill: parent; focus: true } }";
    const QString unheardOf = QStringLiteral("meadow");
    QList<Picture> pictures{
        {QStringLiteral("notes-few"), windowPage, windowSize, with(5), light},
        {QStringLiteral("notes-many-small-huge"), windowPage, smallSize, with(300), both(light, huge)},
        {QStringLiteral("notes-none-small-huge"), alone, smallSize, with(5), both(light, huge), unheardOf},
        {QStringLiteral("notes-many-wide"), windowPage, {1920, 1080}, with(300), light},
    };
    for (const auto &[name, look] : looks()) {
        pictures.append({QStringLiteral("notes-empty-") + name, windowPage, windowSize, with(0), look});
        pictures.append({QStringLiteral("notes-many-") + name, windowPage, windowSize, with(300), look});
        pictures.append({QStringLiteral("notes-none-") + name, alone, windowSize, with(5), look, unheardOf});
    }
    return pictures;
}

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

/// The code screen beside a sidebar's width, with a document of the sample opened by its place in the rail.
Picture codePicture(const QString &name, QSize size, const Look &look, int row, const QByteArray &then)
{
    const QByteArray sidebar = size == smallSize ? "Theme.sidebarWidth" : "248";
    return {QStringLiteral("code-") + name,
            "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Code\n"
            "Item { OVBackground { anchors.fill: parent }\n"
            "CodeView { id: view; anchors.fill: parent; anchors.leftMargin: " +
                sidebar +
                "; focus: true }\n"
                "Timer { interval: 100; running: true; onTriggered: { view.viewModel.selectBy(" +
                QByteArray::number(row) + "); " + then + " } } }",
            size,
            [row](WorkspaceStore &store, UIState &) {
                if (row >= 0)
                    SampleWorkspace::addCode(store);
            },
            look};
}

QList<Picture> codePictures()
{
    const QByteArray run = "view.viewModel.runSnippet()";
    QList<Picture> pictures;
    for (const auto &[name, look] : looks())
        pictures.append(codePicture(name, windowSize, look, 0, run));
    const QByteArray find = "view.viewModel.finder.openReplace('on')";
    pictures.append(codePicture(QStringLiteral("find"), windowSize, light, 0, find));
    pictures.append(codePicture(QStringLiteral("find-dark"), windowSize, dark, 0, find));
    pictures.append(codePicture(QStringLiteral("find-small-huge"), smallSize, both(light, huge), 0, find));
    pictures.append(codePicture(QStringLiteral("failed"), windowSize, light, 1, run));
    pictures.append(codePicture(QStringLiteral("long-lines"), windowSize, light, 2, {}));
    pictures.append(
        codePicture(QStringLiteral("long-lines-wrapped"), windowSize, dark, 2, "view.viewModel.wrap = true"));
    pictures.append(codePicture(QStringLiteral("console-empty"), windowSize, light, 5,
                                "view.viewModel.showConsole = true"));
    pictures.append(codePicture(QStringLiteral("empty"), windowSize, light, -1, {}));
    pictures.append(codePicture(QStringLiteral("small"), smallSize, dark, 0, run));
    pictures.append(codePicture(QStringLiteral("small-huge"), smallSize, both(light, huge), 0, run));
    pictures.append(
        codePicture(QStringLiteral("small-huge-rail"), smallSize, both(light, huge), 2, "view.toggleRail()"));
    return pictures;
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

/// The editor alone, after a script has done something in it.
QByteArray editorPage(const QByteArray &script)
{
    return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Pages\nimport Orvel.Session\n"
           "Item { OVBackground { anchors.fill: parent }\n"
           "PageEditorView { id: view; anchors.fill: parent; focus: true; pageID: Orvel.ui.selection.id }\n"
           "Timer { interval: 200; running: true; onTriggered: { " +
           script + " } } }";
}

QList<Picture> pagePictures()
{
    const auto on = [](QUuid (*make)(WorkspaceStore &)) {
        return [make](WorkspaceStore &store, UIState &ui) {
            SampleWorkspace::fill(store);
            ui.selectPage(make(store));
        };
    };
    const Content every = on(SamplePages::everyBlock);
    const Content workshop = on(SamplePages::workshop);
    const Content empty =
        on([](WorkspaceStore &store) { return PageOperations::create(store, PageKind::page); });
    const Content many = on(SamplePages::manyBlocks);
    const Content longTitle = on([](WorkspaceStore &store) {
        const QUuid id = PageOperations::create(store, PageKind::note);
        PageOperations::rename(store, id,
                               QStringLiteral("A title that goes on and on ").repeated(8).left(200));
        return id;
    });
    const QSize tall(1240, 1600);
    QList<Picture> pictures;
    const auto add = [&](const QByteArray &name, const QByteArray &page, QSize size, const Content &content,
                         const Look &look) {
        pictures.append({QStringLiteral("page-") + QString::fromLatin1(name), page, size, content, look});
    };
    for (const auto &[name, look] : looks())
        add("every-" + name.toLatin1(), windowPage, tall, every, look);
    add("every-small", windowPage, smallSize, every, light);
    add("every-small-huge", windowPage, smallSize, every, both(dark, huge));
    add("empty", windowPage, windowSize, empty, light);
    add("long-title", windowPage, windowSize, longTitle, light);
    add("long-title-small-huge", windowPage, smallSize, longTitle, both(dark, huge));
    add("many",
        editorPage("view.list.positionViewAtIndex(1000, ListView.Beginning); "
                   "view.list.focusBlock(1005, 3)"),
        windowSize, many, light);
    const QByteArray run =
        "for (let i = 1; i < 4; ++i) view.editor.runInlineCode(view.list.rowAt(i).blockID)";
    for (const auto &[name, look] : looks()) {
        add("run-" + name.toLatin1(), editorPage(run), windowSize, workshop, look);
        add("slash-" + name.toLatin1(), editorPage("view.list.focusBlock(0, 1)"), windowSize, workshop, look);
    }
    add("slash-low", editorPage("view.list.focusBlock(5, 1)"), smallSize, workshop, light);
    add("menu", editorPage("const row = view.list.rowAt(4); view.list.menus.openMenu(row, row)"), windowSize,
        workshop, light);
    const QByteArray select =
        "const first = view.list.rowAt(1).blockID; view.editor.selection.select(first, first); "
        "view.editor.selection.extend(7); ";
    for (const auto &[name, look] : looks())
        add("selection-" + name.toLatin1(), editorPage(select), windowSize, every, look);
    add("selection-small-huge", editorPage(select), smallSize, every, both(light, huge));
    add("selection-all", editorPage("view.editor.selection.selectAll()"), tall, every, light);
    add("selection-menu",
        editorPage(select + "const row = view.list.rowAt(4); view.list.menus.openMenu(row, row)"), windowSize,
        every, light);
    add("zen", editorPage("view.editor.isZen = true"), windowSize, every, light);
    const QByteArray find = "view.editor.finder.open('the')";
    const QByteArray replace = "view.editor.finder.openReplace('the'); view.editor.finder.replacement = 'a'";
    for (const auto &[name, look] : looks()) {
        add("find-" + name.toLatin1(), editorPage(find), windowSize, every, look);
        add("replace-" + name.toLatin1(), editorPage(replace), windowSize, every, look);
    }
    add("find-none", editorPage("view.editor.finder.open('meadow')"), windowSize, every, light);
    add("replace-small-huge", editorPage(replace), smallSize, every, both(dark, huge));
    add("find-zen", editorPage("view.editor.isZen = true; " + find), windowSize, every, light);
    add("zen-dark", editorPage("view.editor.isZen = true"), windowSize, every, dark);
    return pictures;
}

/// A folder of Markdown files as others write them.
QString markdownFolder()
{
    static const QTemporaryDir folder;
    const QList<std::pair<QString, QByteArray>> files{
        {QStringLiteral("Travel/Packing.md"), "# Packing\n\n- [ ] boots\n  - laces\n"},
        {QStringLiteral("Travel/Norway/Fjords.md"), "---\ntitle: Fjords\ntags: [sea]\n---\n\nText\n"},
        {QStringLiteral("Travel/Norway/Costs.md"), "# Costs\n\n| a | b |\n|---|---|\n| 1 | 2 |\n"},
        {QStringLiteral("Travel/map.png"), "x"}};
    for (const auto &[name, text] : files) {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }
    return folder.filePath(QStringLiteral("Travel"));
}

QList<Picture> transferPictures()
{
    const auto page = [](const QByteArray &script) {
        return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Transfer\n"
               "Item { OVBackground { anchors.fill: parent } MarkdownLayer { id: view; anchors.fill: parent "
               "}\n"
               "Timer { interval: 100; running: true; onTriggered: { " +
               script + " } } }";
    };
    const QByteArray read = "view.transfer.read(['" + QUrl::fromLocalFile(markdownFolder()).toEncoded() +
                            "']); view.openImport()";
    QList<Picture> pictures;
    const auto add = [&](const QString &name, const QByteArray &script, QSize size, const Look &look) {
        pictures.append({QStringLiteral("transfer-") + name, page(script), size,
                         [](WorkspaceStore &store, UIState &) { SampleWorkspace::fill(store); }, look});
    };
    for (const auto &[name, look] : looks()) {
        add(QStringLiteral("import-") + name, "view.openImport()", windowSize, look);
        add(QStringLiteral("ready-") + name, read, windowSize, look);
        add(QStringLiteral("export-") + name, "view.openExport()", windowSize, look);
    }
    add(QStringLiteral("missing"), "view.openImport(); view.transfer.readPlace('/nowhere')", windowSize,
        light);
    add(QStringLiteral("ready-small-huge"), read, smallSize, both(dark, huge));
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

/// A database in one of its layouts.
Picture databasePicture(const QString &name, QSize size, const Look &look, void (*fill)(WorkspaceStore &),
                        const QByteArray &script)
{
    return {QStringLiteral("database-") + name,
            "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Databases\n"
            "Item { OVBackground { anchors.fill: parent }\n"
            "DatabasesView { id: view; anchors.fill: parent; focus: true; railWanted: false }\n"
            "Timer { interval: 100; running: true; onTriggered: { view.viewModel.selectBy(0); " +
                script + " } } }",
            size, [fill](WorkspaceStore &store, UIState &) { fill(store); }, look};
}

QList<Picture> databasePictures()
{
    QList<Picture> pictures;
    for (const EnumCase<DBViewType> &layout : enumCases<DBViewType>()) {
        const QByteArray raw(layout.raw.data(), qsizetype(layout.raw.size()));
        const QByteArray open = "view.viewModel.addView('" + raw + "')";
        const QString name = QString::fromLatin1(raw) + u'-';
        for (const auto &[lookName, look] : looks())
            pictures.append(
                databasePicture(name + lookName, windowSize, look, &SampleDatabases::ordinary, open));
        pictures.append(databasePicture(name + QStringLiteral("empty"), windowSize, light,
                                        &SampleDatabases::empty, open));
        pictures.append(databasePicture(name + QStringLiteral("crowded"), windowSize, light,
                                        &SampleDatabases::crowded, open));
        pictures.append(databasePicture(name + QStringLiteral("crowded-small-huge"), smallSize,
                                        both(light, huge), &SampleDatabases::crowded, open));
    }
    return pictures;
}

/// The screens of the modules, each empty, ordinary in every look, and crowded in a small window with huge
/// text.
QList<Picture> modulePictures()
{
    using Fill = void (*)(WorkspaceStore &);
    const auto on = [](Destination::Kind place, Fill fill) {
        return [place, fill](WorkspaceStore &store, UIState &ui) {
            fill(store);
            ui.setSelection(Destination::to(place));
        };
    };
    const auto onProject = [](QUuid (*choose)(const WorkspaceStore &)) {
        return [choose](WorkspaceStore &store, UIState &ui) {
            SampleMonth::fill(store);
            ui.selectProject(choose(store));
        };
    };
    const Look smallHuge = both(light, huge);
    QList<Picture> pictures;
    using enum Destination::Kind;
    for (const Destination::Kind place : {dashboard, today, focus, calendar, projects, databases, decks,
                                          habits, insights, relax, reader, settings}) {
        const QString name = enumRawText(place);
        for (const auto &[lookName, look] : looks())
            pictures.append(
                {name + u'-' + lookName, windowPage, windowSize, on(place, SampleMonth::fill), look});
        pictures.append({name + QStringLiteral("-empty"), windowPage, windowSize,
                         on(place, [](WorkspaceStore &) {}), light});
        pictures.append({name + QStringLiteral("-small-huge"), windowPage, smallSize,
                         on(place, SampleMonth::crowd), smallHuge});
    }
    for (const auto &[name, look] : looks())
        pictures.append({QStringLiteral("project-") + name, windowPage, windowSize,
                         onProject(SampleMonth::fullProject), look});
    pictures.append(
        {QStringLiteral("project-bare"), windowPage, windowSize, onProject(SampleMonth::bareProject), light});
    pictures.append({QStringLiteral("project-small-huge"), windowPage, smallSize,
                     onProject(SampleMonth::fullProject), smallHuge});
    return pictures;
}

/// A screen beside a sidebar's width, as `view`, after a script has done something in it.
QByteArray screenPage(const QByteArray &module, const QByteArray &view, const QByteArray &script)
{
    return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel." + module +
           "\nItem { OVBackground { anchors.fill: parent }\n" + view +
           " { id: view; anchors.fill: parent; anchors.leftMargin: Theme.sidebarWidth; focus: true }\n"
           "Timer { id: later; interval: 300; onTriggered: { view.viewModel.toggleRunning(); "
           "if (resumed) view.viewModel.toggleRunning() } "
           "property bool resumed: true }\n"
           "Timer { interval: 20; running: true; onTriggered: { " +
           script + " } } }";
}

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
        add(u"focus-running"_s, screenPage("Focus", "FocusView", start), windowSize, sample);
        add(u"focus-paused"_s, screenPage("Focus", "FocusView", pause), windowSize, none);
        add(u"habits-none"_s, habits, windowSize, none);
        add(u"habits-three"_s, habits, windowSize, with(SamplePractice::threeHabits));
        add(u"habits-forty"_s, habits, windowSize, with(SamplePractice::fortyHabits));
        add(u"habits-composer"_s, screenPage("Habits", "HabitsView", "view.compose()"), windowSize,
            with(SamplePractice::threeHabits));
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

/// The modes of the calendar, many projects and the whole of the settings.
QList<Picture> planningPictures()
{
    const auto with = [](void (*fill)(WorkspaceStore &)) {
        return [fill](WorkspaceStore &store, UIState &) { fill(store); };
    };
    const QByteArray calendar = screenPage("Calendar", "CalendarView", {});
    const QByteArray projects = screenPage("Projects", "ProjectsView", {});
    const QByteArray settings = screenPage("Settings", "SettingsView", {});
    const Look smallHuge = both(light, huge);
    QList<Picture> pictures;
    for (const QString &mode : {u"month"_s, u"week"_s, u"day"_s, u"agenda"_s}) {
        const QString name = u"planning-"_s + mode;
        const QString key = mode.first(1);
        const auto add = [&](const QString &state, void (*fill)(WorkspaceStore &), QSize size,
                             const Look &look) {
            pictures.append({name + u'-' + state, calendar, size, with(fill), look, key});
        };
        add(u"empty"_s, [](WorkspaceStore &) {}, windowSize, light);
        add(u"ordinary"_s, SampleMonth::fill, windowSize, dark);
        add(u"crowded"_s, SampleMonth::crowd, windowSize, light);
        add(u"crowded-small-huge"_s, SampleMonth::crowd, smallSize, smallHuge);
    }
    pictures.append({u"planning-projects-sixty"_s, projects, windowSize, with(SampleMonth::crowd), light});
    for (const auto &[name, look] : looks())
        pictures.append(
            {u"planning-settings-"_s + name, settings, {1240, 3600}, with(SampleMonth::fill), look});
    pictures.append(
        {u"planning-settings-small-huge"_s, settings, {900, 5200}, with(SampleMonth::fill), smallHuge});
    return pictures;
}

/// A page of decks after a script has done something in it, and what it presents if the deck is presented.
QByteArray deckPage(const QByteArray &script)
{
    return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Decks\n"
           "Item { OVBackground { anchors.fill: parent }\n"
           "DecksView { id: view; anchors.fill: parent; focus: true }\n"
           "DeckPresenterLayer { id: talk; anchors.fill: parent }\n"
           "Timer { interval: 200; running: true; onTriggered: { " +
           script + " } } }";
}

QList<Picture> deckPictures()
{
    const auto on = [](const std::function<QUuid(WorkspaceStore &)> &make, bool presented = false) {
        return [make, presented](WorkspaceStore &store, UIState &ui) {
            const QUuid id = make(store);
            ui.setDeckID(id);
            if (presented)
                ui.setPresentingDeckID(id);
        };
    };
    const auto every = [](WorkspaceStore &store) {
        return SampleDecks::everyKind(store, SlideTheme::catalog().at(3));
    };
    QList<Picture> pictures;
    const auto add = [&](const QString &name, const QByteArray &script, QSize size, const Content &content,
                         const Look &look) {
        pictures.append({QStringLiteral("deck-") + name, deckPage(script), size, content, look});
    };
    for (const SlideTheme &theme : SlideTheme::catalog())
        for (const auto &kind : enumCases<SlideKind>())
            add(QStringLiteral("kind-%1-%2").arg(theme.id, enumRawText(kind.value)),
                "view.showInspector = false; view.editor.selectAt(" + QByteArray::number(int(kind.value)) +
                    ")",
                windowSize,
                on([theme](WorkspaceStore &store) { return SampleDecks::everyKind(store, theme); }), light);
    const QByteArray bullet = "view.editor.selectAt(3); view.pane.slide.edit('body', 12)";
    const QByteArray notes = "PresenterStyle.showingNotes = true; talk.presenter.advance(3)";
    for (const auto &[name, look] : looks()) {
        add(QStringLiteral("editing-") + name, bullet, windowSize, on(every), look);
        add(QStringLiteral("exporting-") + name, "view.deckExport.exportAs('pdf')", windowSize,
            on(SampleDecks::many), look);
        add(QStringLiteral("notes-") + name, notes, windowSize, on(every, true), look);
    }
    for (int i = 0; i < 8; ++i)
        add(QStringLiteral("overflow-%1").arg(i + 1), "view.editor.selectAt(" + QByteArray::number(i) + ")",
            windowSize, on(SampleDecks::crowded), light);
    add(QStringLiteral("bare"), {}, windowSize, on(SampleDecks::bare), light);
    add(QStringLiteral("many"), "view.editor.selectAt(150)", windowSize, on(SampleDecks::many), dark);
    add(QStringLiteral("small"), bullet, smallSize, on(every), dark);
    add(QStringLiteral("small-huge"), bullet, smallSize, on(SampleDecks::crowded), both(light, huge));
    add(QStringLiteral("blanked"), "talk.presenter.blanked = true", windowSize, on(every, true), light);
    add(QStringLiteral("end"), "PresenterStyle.showingNotes = false; talk.presenter.showLast()", windowSize,
        on(every, true), light);
    add(QStringLiteral("notes-small-huge"), notes, smallSize, on(SampleDecks::crowded, true),
        both(light, huge));
    return pictures;
}

void type(QWindow &window, const QString &text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&window, &press);
    }
}

/// Lets bindings, animations and images settle.
void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool draw(const Picture &picture, const QString &file)
{
    ScratchWorkspace workspace;
    workspace.store.changeSettings(picture.look);
    picture.content(workspace.store, workspace.ui);
    OVTheme::apply(workspace.store.settings());

    QQuickView view;
    view.engine()->addImportPath(QStringLiteral(":/qt/qml"));
    workspace.session.provideTo(*view.engine());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(picture.size);
    auto *const component = new QQmlComponent(view.engine(), &view);
    component->setData(picture.page, QUrl());
    view.setContent(QUrl(), component, component->create());
    if (view.status() != QQuickView::Ready) {
        QTextStream(stderr) << component->errorString();
        return false;
    }
    view.show();
    settle(900);
    if (!picture.typed.isEmpty()) {
        view.requestActivate();
        type(view, picture.typed);
        settle(300);
    }
    return view.grabWindow().save(file);
}

/// Stands for a language that needs more room: every marked text is a third longer and begins with a sign.
class PseudoLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString source = QString::fromUtf8(text);
        const qsizetype more = (source.size() + 2) / 3;
        return u'¬' + source + QString::fromLatin1(" und noch ein wenig").repeated(more / 19 + 1).left(more);
    }
};

bool isWanted(const QString &name, const QStringList &beginnings)
{
    return beginnings.isEmpty() || std::ranges::any_of(beginnings, [&name](const QString &beginning) {
               return name.startsWith(beginning);
           });
}
} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QStringList arguments = application.arguments();
    QTextStream err(stderr);
    PseudoLanguage pseudo;
    if (arguments.removeAll(QStringLiteral("--pseudo")) > 0)
        QCoreApplication::installTranslator(&pseudo);
    if (arguments.size() < 2) {
        err << "usage: orvel-screenshots [--pseudo] FOLDER [BEGINNING OF A NAME]...\n";
        return 2;
    }
    const QDir folder(arguments.at(1));
    if (!folder.mkpath(QStringLiteral("."))) {
        err << "The folder " << folder.path() << " cannot be made.\n";
        return 1;
    }
    for (const Picture &picture : galleryPictures() + codePictures() + deckPictures() + databasePictures() +
                                      modulePictures() + notesPictures() + onboardingPictures() +
                                      pagePictures() + planningPictures() + palettePictures() +
                                      practicePictures() + transferPictures() + shellPictures() +
                                      tasksPictures()) {
        if (!isWanted(picture.name, arguments.sliced(2)))
            continue;
        const QString file = folder.filePath(picture.name + QStringLiteral(".png"));
        if (!draw(picture, file)) {
            err << "The picture " << file << " cannot be made.\n";
            return 1;
        }
    }
    return 0;
}
