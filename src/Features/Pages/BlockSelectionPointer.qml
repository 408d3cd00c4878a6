import QtQuick
import Orvel.Pages

/// Selects blocks with the mouse, by a press in a text that is dragged into another block and by a click with Shift,
/// and opens links by a click with Control. It lies over the list and lets every other press through.
Item {
    id: root

    required property BlockSelecting list
    /// The block whose text the pointer was pressed in.
    property var pressedID: undefined
    property BlockRow pressedRow: null

    function rowUnder(y: real): BlockRow {
        const inside = Math.max(1, Math.min(list.height - 1, y))
        return list.rowAt(list.indexAt(list.width / 2, inside + list.contentY))
    }

    /// The address under a point; empty for none.
    function linkAt(row: var, x: real, y: real): string {
        const field = row.part?.input as BlockField
        const place = field?.mapFromItem(root, x, y)
        return field?.contains(place) ? list.editor.linkIn(field.text, field.positionAt(place.x, place.y)) : ""
    }

    function begin() {
        const row = rowUnder(press.point.position.y)
        const input = row?.part?.input
        const place = input?.mapFromItem(root, press.point.position.x, press.point.position.y)
        pressedRow = input?.contains(place) && !(press.point.modifiers & Qt.ShiftModifier) ? row : null
        pressedID = pressedRow?.blockID
    }

    function drag() {
        const row = rowUnder(press.point.position.y)
        if (pressedID === undefined || !row || (row.blockID === pressedID && !list.selection.active))
            return
        // The text would show its own selection as well.
        pressedRow?.part?.input?.deselect()
        list.selection.select(pressedID, row.blockID)
    }

    function end() {
        if (list.selection.active)
            pressedRow?.part?.input?.deselect()
        pressedRow = null
        pressedID = undefined
    }

    MouseArea {
        property string pressedLink: ""

        anchors.fill: parent
        onPressed: mouse => {
            const row = root.rowUnder(mouse.y)
            pressedLink = mouse.modifiers === Qt.ControlModifier && row ? root.linkAt(row, mouse.x, mouse.y) : ""
            const isExtending = (mouse.modifiers & Qt.ShiftModifier) !== 0 && row !== null && root.list.selectTo(row)
            mouse.accepted = isExtending || pressedLink !== ""
        }
        onClicked: if (pressedLink !== "") root.list.editor.openLink(pressedLink)
    }

    PointHandler {
        id: press
        acceptedButtons: Qt.LeftButton
        onActiveChanged: {
            if (active)
                root.begin()
            else
                root.end()
        }
        onPointChanged: if (active) root.drag()
    }

    EdgeScroll {
        dragging: root.pressedID !== undefined && root.list.selection.active
        list: root.list
        pointerY: press.point.position.y
        onScrolled: root.drag()
    }
}
