import QtQuick
import Orvel.DesignSystem

/// What a row shows at its left under the pointer: a button for a new block below, and the handle that opens
/// the block's menu.
Row {
    id: root

    signal insertRequested()
    signal menuRequested(from: Item)

    OVIconButton {
        tabStop: false
        iconSize: Theme.iconRow
        implicitHeight: Theme.space24
        implicitWidth: Theme.space24
        radius: Theme.cornerMark
        symbol: "plus"
        text: qsTr("Add a block below")
        onClicked: root.insertRequested()
    }

    OVIconButton {
        id: handle
        tabStop: false
        iconSize: Theme.iconRow
        implicitHeight: Theme.space24
        implicitWidth: Theme.space24
        radius: Theme.cornerMark
        symbol: "line.3.horizontal"
        text: qsTr("Block menu")
        onClicked: root.menuRequested(handle)
    }
}
