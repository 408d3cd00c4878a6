import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The search within a page, above its blocks.
OVFindBar {
    id: root

    required property PageEditorViewModel editor
    required property BlockList list
    readonly property BlockRow row: list.currentItem as BlockRow
    readonly property TextEdit input: row?.part?.input ?? null

    canFind: editor.finder !== null && list.visible && list.enabled
    finder: editor.finder
    placeholder: qsTr("Find in page")
    selectedText: input?.activeFocus ? input.selectedText : ""
    onAboutToOpen: behind => {
        if (row && input)
            finder.startAt(row.blockID, editor.partBegin(row.blockID) + (behind ? input.selectionEnd : input.selectionStart))
    }
    onCloseRequested: {
        finder.close()
        if (!(finder as PageFinder).choose())
            list.restoreFocus()
    }

    ShownFinder {
        active: root.canFind
        finder: root.finder
        session: Orvel
    }

    Connections {
        target: root.finder

        function onShown(row, blockID, start, length, selects) {
            root.list.showMatch(row, start - root.editor.showPartAt(blockID, start), length, selects)
        }
    }
}
