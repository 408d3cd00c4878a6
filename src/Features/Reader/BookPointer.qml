import QtQuick
import Orvel.DesignSystem
import Orvel.Reader

/// Selects the text of a book with the mouse: by dragging, by words with a double click, and on from the selection
/// with Shift. The wheel goes on to the text below.
MouseArea {
    id: root

    required property BookText reading
    required property BookSelection selection
    readonly property ListView list: reading.list
    property bool isSelecting: false

    signal findRequested()

    /// The row at a point and the place in its text.
    function placeAt(x: real, y: real): point {
        const inList = Math.max(0, Math.min(list.height - 1, y))
        const row = list.indexAt(list.width / 2, list.contentY + inList)
        const item = list.itemAtIndex(row) as BookParagraph
        return item ? Qt.point(row, item.positionAt(x, list.contentY + inList - item.y)) : Qt.point(-1, 0)
    }

    function extendTo(x: real, y: real) {
        const place = placeAt(x, y)
        if (place.x >= 0)
            selection.extend(place.x, place.y)
    }

    acceptedButtons: Qt.LeftButton
    cursorShape: Math.abs(mouseX - width / 2) < reading.columnWidth / 2 ? Qt.IBeamCursor : Qt.ArrowCursor
    hoverEnabled: true

    onDoubleClicked: mouse => {
        const place = placeAt(mouse.x, mouse.y)
        if (place.x >= 0)
            selection.selectWord(place.x, place.y)
    }
    onPositionChanged: mouse => {
        if (isSelecting)
            extendTo(mouse.x, mouse.y)
    }
    onPressed: mouse => {
        // A finger scrolls.
        if (mouse.source !== Qt.MouseEventNotSynthesized) {
            mouse.accepted = false
            return
        }
        list.forceActiveFocus(Qt.MouseFocusReason)
        const place = placeAt(mouse.x, mouse.y)
        isSelecting = place.x >= 0
        if (!isSelecting)
            selection.clear()
        else if (mouse.modifiers & Qt.ShiftModifier)
            selection.extend(place.x, place.y)
        else
            selection.begin(place.x, place.y)
    }
    onReleased: isSelecting = false

    // Scrolls on while the pointer is dragged beyond an edge.
    Timer {
        interval: 40
        repeat: true
        running: root.isSelecting && (root.mouseY < 0 || root.mouseY > root.height)
        onTriggered: {
            root.reading.scrollBy(root.mouseY < 0 ? -root.reading.lineHeight : root.reading.lineHeight)
            root.extendTo(root.mouseX, root.mouseY)
        }
    }

    OVContextMenuArea {
        menu: OVMenu {
            OVMenuItem {
                enabled: !root.selection.isEmpty
                shortcutText: "Ctrl+C"
                symbol: "doc.on.doc"
                text: qsTr("Copy")
                onTriggered: root.selection.copy()
            }

            OVMenuItem {
                shortcutText: "Ctrl+A"
                symbol: "selection.pin.in.out"
                text: qsTr("Select all")
                onTriggered: root.selection.selectAll()
            }

            OVMenuSeparator { }

            OVMenuItem {
                shortcutText: "Ctrl+F"
                symbol: "magnifyingglass"
                text: qsTr("Find in book")
                onTriggered: root.findRequested()
            }
        }
    }
}
