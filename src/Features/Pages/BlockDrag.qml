import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// Drags a block, or all that are selected, to another place: a line shows where it would stand, and the page scrolls near its edges.
Rectangle {
    id: root

    required property PageEditorViewModel editor
    required property ScreenList list
    /// The row that is dragged; null for none.
    property BlockRow row: null
    /// Where the pointer is in the list.
    property real pointerY: 0
    /// The row before which the block would stand.
    property int target: 0

    function move(row: var, sceneY: real) {
        if (root.row !== row) {
            root.row = row
            if (!editor.selection.includes(row.index))
                row.part.focusAt(-1)
        }
        pointerY = list.mapFromItem(null, 0, sceneY).y
        aim()
    }

    function aim() {
        const index = list.indexAt(list.width / 2, list.contentY + pointerY)
        const below = list.itemAtIndex(index)
        if (below)
            target = list.contentY + pointerY > below.y + below.height / 2 ? index + 1 : index
        else
            target = pointerY < list.height / 2 ? 0 : list.count
        const last = list.itemAtIndex(target - 1)
        y = (last ? last.y + last.height : list.itemAtIndex(target)?.y ?? 0) - list.contentY - height / 2
    }

    function drop() {
        if (row && editor.selection.includes(row.index)) {
            editor.selection.moveTo(target)
            row = null
            return
        }
        const steps = row ? (target > row.index ? target - 1 : target) - row.index : 0
        if (steps !== 0)
            editor.moveBlock(row.blockID, steps)
        row = null
    }

    color: Theme.accent
    height: 2
    radius: height / 2
    visible: row !== null
    width: list.columnWidth
    x: list.columnX

    EdgeScroll {
        dragging: root.visible
        list: root.list
        pointerY: root.pointerY
        onScrolled: root.aim()
    }
}
