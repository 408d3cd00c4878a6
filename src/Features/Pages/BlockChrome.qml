import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What a row shows at its left under the pointer: a button for a new block below, and the grip, which drags the
/// block and opens its menu.
Row {
    id: root

    /// The row that it belongs to; null for none.
    property BlockRow row: null
    /// The row beside which it is drawn, which is still the last one while it fades out.
    property BlockRow shownRow: null

    signal insertRequested()
    signal menuRequested(from: Item)
    /// The grip is dragged to this height in the window.
    signal dragged(sceneY: real)
    signal dropped()

    component Tool: OVIconButton {
        tabStop: false
        iconSize: Theme.iconRow
        implicitHeight: Theme.space24
        implicitWidth: Theme.space24
        radius: Theme.cornerMark
    }

    opacity: row ? 1 : 0
    visible: opacity > 0 && shownRow !== null
    y: shownRow ? shownRow.y + Math.round((shownRow.part?.firstLineCenter ?? 0) - height / 2) : 0
    onRowChanged: shownRow = row ?? shownRow

    Behavior on opacity {
        NumberAnimation { duration: Theme.durationHover }
    }

    Tool {
        symbol: "plus"
        text: qsTr("Add a block below")
        onClicked: root.insertRequested()
    }

    Tool {
        id: grip
        symbol: "line.3.horizontal"
        text: qsTr("Block menu")
        onClicked: root.menuRequested(grip)

        DragHandler {
            id: drag
            cursorShape: Qt.ClosedHandCursor
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            target: null
            onActiveChanged: if (!active) root.dropped()
            onCentroidChanged: if (active) root.dragged(centroid.scenePosition.y)
        }
    }
}
