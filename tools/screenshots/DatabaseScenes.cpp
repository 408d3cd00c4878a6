#include "SampleDatabases.h"
#include "Scenes.h"

namespace
{
/// A database in one of its layouts.
Picture databasePicture(const QString &name, QSize size, const Look &look, void (*fill)(WorkspaceStore &),
                        const QByteArray &script, const QByteArray &later = {})
{
    return {QStringLiteral("database-") + name,
            "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Databases\n"
            "Item { id: page; property var pointer; OVBackground { anchors.fill: parent }\n"
            // The first that passes the test, among what is shown.
            "function find(test, from = view) { for (let i = 0; i < from.children.length; ++i) { "
            "const child = from.children[i]; if (!child.visible) continue; const found = test(child) ? child "
            ": find(test, child); if (found) return found } "
            "return null }\n"
            "function cell(column) { return find(item => item instanceof DBValueCell && item.column === "
            "column) }\n"
            "DatabasesView { id: view; anchors.fill: parent; focus: true; railWanted: false }\n"
            "Timer { interval: 100; running: true; onTriggered: { view.viewModel.selectBy(0); " +
                script +
                " } }\n"
                // Not before the layout is there.
                "Timer { interval: 400; running: true; onTriggered: { " +
                later + " } } }",
            size, [fill](WorkspaceStore &store, UIState &) { fill(store); }, look};
}

/// What opens over or in the screen, each in every look and crowded in a small window with huge text.
QList<Picture> openedPictures()
{
    const QByteArray pane = "page.find(item => item instanceof DatabasePane)";
    const QByteArray records = "page.find(item => item instanceof DatabaseViewContent)";
    const auto cell = [](DBPropertyType type, const char *ring) {
        return QByteArray("const cell = page.cell(") + QByteArray::number(int(type)) +
               "); if (!cell) return; cell.current = true; cell.ringShown = " + ring + "; ";
    };
    struct Scene {
        QString name;
        QByteArray script;
    };
    QList<Scene> scenes{{QStringLiteral("settings"), pane + ".settingsShown = true"},
                        {QStringLiteral("property"), records + ".records.editProperty(1)"},
                        {QStringLiteral("new-property"),
                         "page.find(item => item instanceof DatabaseTabs).propertyRequested()"},
                        {QStringLiteral("column-menu"),
                         "page.find(item => item instanceof DBHeaderCell && item.column === 1).openMenu()"}};
    for (const auto &type : enumCases<DBPropertyType>()) {
        const QString raw = QString::fromLatin1(type.raw.data(), qsizetype(type.raw.size()));
        scenes.append({QStringLiteral("focus-") + raw, cell(type.value, "true")});
        scenes.append({QStringLiteral("edit-") + raw, cell(type.value, "false") + "cell.open()"});
        scenes.append(
            {QStringLiteral("hover-") + raw,
             cell(type.value, "false") + "page.pointer = cell.mapToItem(page, 24, cell.height / 2)"});
    }
    const QByteArray open = "view.open(view.viewModel.selectedID)";
    // All types of property beside each other.
    const QSize wide(1960, 820);
    QList<Picture> pictures;
    for (const auto &[name, script] : std::as_const(scenes)) {
        for (const auto &[lookName, look] : looks())
            pictures.append(databasePicture(
                name + u'-' + lookName, name.contains(u"-") && !name.startsWith(u"new") ? wide : windowSize,
                look, &SampleDatabases::ruled, open, script));
        pictures.append(databasePicture(name + QStringLiteral("-crowded-small-huge"), smallSize,
                                        both(light, huge), &SampleDatabases::crowded, open, script));
    }
    return pictures;
}
} // namespace

QList<Picture> databasePictures()
{
    QList<Picture> pictures = openedPictures();
    for (const EnumCase<DBViewType> &layout : enumCases<DBViewType>()) {
        const QByteArray raw(layout.raw.data(), qsizetype(layout.raw.size()));
        const QByteArray open = "view.open(view.viewModel.selectedID); view.viewModel.addView('" + raw + "')";
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
