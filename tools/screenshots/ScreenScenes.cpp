#include "SampleMonth.h"
#include "SampleWorkspace.h"
#include "Scenes.h"

QList<Picture> galleryPictures()
{
    const QByteArray page = "import Orvel.Gallery\nGallery { }";
    const QByteArray charts = "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Gallery\n"
                              "Rectangle { color: Theme.ovCanvas; ChartsSection { width: parent.width } }";
    const Content none = [](WorkspaceStore &, UIState &) {};
    QList<Picture> pictures;
    for (const auto &[name, look] : looks()) {
        pictures.append({QStringLiteral("gallery-") + name, page, {1240, 1500}, none, look});
        pictures.append({QStringLiteral("gallery-charts-") + name, charts, {1240, 1500}, none, look});
    }
    return pictures;
}

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
