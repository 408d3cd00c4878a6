#include "SampleWorkspace.h"
#include "Scenes.h"

namespace
{
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
} // namespace

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
