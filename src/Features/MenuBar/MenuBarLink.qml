import QtQuick
import Orvel.DesignSystem

/// A line of the panel's foot.
OVPressable {
    id: root

    required property string symbol

    implicitHeight: Theme.rowHeight
    leftPadding: Theme.space8
    pressedScale: 1
    rightPadding: Theme.space8

    contentItem: Row {
        spacing: Theme.space8

        OVIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            symbol: root.symbol
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Dense
            text: root.text
            width: parent.width - icon.width - parent.spacing
            Accessible.ignored: true
        }
    }
}
