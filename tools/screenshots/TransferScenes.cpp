#include "SampleWorkspace.h"
#include "Scenes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

namespace
{
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
} // namespace

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
