#include "SamplePages.h"
#include "SampleWorkspace.h"
#include "Scenes.h"
#include "Store/PageOperations.h"

namespace
{
/// The editor alone, after a script has done something in it.
QByteArray editorPage(const QByteArray &script)
{
    return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Pages\nimport Orvel.Session\n"
           "Item { OVBackground { anchors.fill: parent }\n"
           "PageEditorView { id: view; anchors.fill: parent; focus: true; pageID: Orvel.ui.selection.id }\n"
           "Timer { interval: 200; running: true; onTriggered: { " +
           script + " } } }";
}
} // namespace

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
