import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// A line of the overflow menu: a place, or the heading over some.
OVPressable {
    id: root

    required property int index
    required property string title
    required property string symbol
    required property string emoji
    required property string destination

    readonly property bool isPlace: destination !== ""

    hoverEnabled: isPlace
    implicitHeight: Theme.rowHeight
    leftPadding: Theme.space12
    pressedScale: 1
    rightPadding: Theme.space12
    tabStop: false
    text: title
    Accessible.name: title
    OVAccessible.role: isPlace ? Accessible.MenuItem : Accessible.Heading

    background: HoverWash {
        chosen: root.ListView.isCurrentItem
        hovered: root.hovered && root.isPlace
        pressed: root.down && root.isPlace
    }
    contentItem: Item {
        RowIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            emoji: root.emoji
            symbol: root.symbol
            visible: root.isPlace
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: root.isPlace ? Theme.ovInk : Theme.ovInkTertiary
            maximumLineCount: 1
            role: root.isPlace ? OVText.Dense : OVText.Section
            text: root.title
            width: parent.width - x
            x: root.isPlace ? icon.width + Theme.space8 : 0
            Accessible.ignored: true
        }
    }
}
