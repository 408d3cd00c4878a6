import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The blocks of a page below what is shown above them, in one scrolling column. Only the rows in sight exist,
/// and the one that has the focus.
BlockKeys {
    id: root

    /// The row under the pointer.
    readonly property BlockRow hoveredRow: count > 0 && pointer.hovered
            ? rowAt(indexAt(width / 2, root.mapFromItem(null, 0, pointer.pointerY).y + contentY)) : null
    readonly property alias menus: menus

    draggedRow: drag.row
    // New blocks come while the user types, when nothing else may move.
    addDisplaced: null
    maximumWidth: editor.isZen ? Theme.zenWidth : Theme.readingWidth
    minimumPadding: 2 * Theme.space24 + 2 * Theme.space4
    model: editor.rows
    // A page is there at once, for reading and writing.
    opening: false

    delegate: BlockRow {
        editor: root.editor
        onCaretMoved: Qt.callLater(root.reveal)
        onDeparted: direction => root.step(index, direction)
        onKeyPressed: event => root.handleKey(this, event)
        onTabbed: forward => root.tabFrom(this, forward)
        onToneMenuRequested: from => menus.openToneMenu(this, from)
    }
    footer: BlockListFooter {
        columnWidth: root.columnWidth
        columnX: root.columnX
        hasButton: !root.editor.isZen
        room: root.editor.isZen ? root.height / 2 : 0
        width: root.width
        onAddRequested: root.editor.appendBlock()
        onLeftBackwards: root.count > 0 ? root.show(root.count - 1).part.focusByTab(false) : root.exitBackwards()
    }

    Keys.onEscapePressed: event => {
        event.accepted = drag.row !== null
        drag.row = null
    }

    BlockDrag {
        id: drag
        editor: root.editor
        list: root
        parent: root
    }

    BlockChrome {
        id: chrome
        parent: root.contentItem
        z: 2
        row: drag.row ?? (menus.menuOpen ? menus.menuRow : root.caret.typing ? null : root.hoveredRow)
        x: root.columnX - width - Theme.space4
        onDragged: sceneY => drag.move(chrome.shownRow, sceneY)
        onDropped: drag.drop()
        onInsertRequested: root.editor.insertBlock(chrome.shownRow.blockID)
        onMenuRequested: from => menus.openMenu(chrome.shownRow, from)
    }

    // What lies beside and below the blocks.
    MouseArea {
        height: root.height
        parent: root.contentItem
        width: root.width
        y: root.contentY
        z: -1
        onClicked: mouse => root.focusBeside(mouse.x, mouse.y)
    }

    HoverHandler {
        id: pointer

        // What moves below a pointer at rest is no move of the pointer.
        readonly property real pointerX: point.scenePosition.x
        readonly property real pointerY: point.scenePosition.y

        parent: root
        onPointerXChanged: root.caret.typing = false
        onPointerYChanged: root.caret.typing = false
    }

    BlockSelectionPointer {
        height: root.height
        list: root
        parent: root
        width: root.width
        z: 3
    }

    // A list gives the focus that it has itself to its current row.
    BlockSelectionKeys {
        list: root
        parent: root.parent
        onMenuRequested: menus.openMenu(root.rowAt(root.selection.focusRow), root.rowAt(root.selection.focusRow))
    }

    BlockMenus {
        id: menus
        height: root.height
        list: root
        parent: root
        width: root.width
    }

    onMenuRequested: row => menus.openMenu(row, row)

    Connections {
        target: root.editor
        function onFocusRequested(row, caret) {
            root.focusBlock(row, caret)
        }
    }
}
