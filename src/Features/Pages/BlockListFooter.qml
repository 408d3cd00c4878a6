import QtQuick
import Orvel.DesignSystem

/// What stands below the last block: the button for one more, and room to scroll the last block
/// up.
Item {
    id: root

    required property int columnX
    required property int columnWidth
    property bool hasButton: true
    /// Room to keep free below the blocks.
    property real room: 0
    readonly property Item button: add

    signal addRequested()
    signal leftBackwards()

    height: Math.max(room, add.y + add.height + 2 * Theme.space48)

    OVPressable {
        id: add
        implicitHeight: Theme.rowHeight
        leftPadding: Theme.space8
        rightPadding: Theme.space12
        text: qsTr("Add a block")
        visible: root.hasButton
        x: root.columnX - Theme.space8
        y: Theme.space12
        Keys.onBacktabPressed: root.leftBackwards()
        Keys.onUpPressed: root.leftBackwards()
        onClicked: root.addRequested()

        contentItem: OVButtonContent {
            color: Theme.ovInkTertiary
            symbol: "plus"
            text: add.text
        }
    }
}
