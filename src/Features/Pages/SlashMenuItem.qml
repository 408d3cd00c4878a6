import QtQuick
import Orvel.DesignSystem

/// One type in the slash menu.
OVPressable {
    id: root

    required property string symbol

    tabStop: false
    implicitHeight: Theme.rowHeight
    leftPadding: Theme.space12
    pressedScale: 1
    rightPadding: Theme.space12
    OVAccessible.role: Accessible.MenuItem

    contentItem: Item {
        OVIcon {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.symbol
        }

        OVText {
            anchors.left: icon.right
            anchors.leftMargin: Theme.space8
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Dense
            text: root.text
        }
    }
}
