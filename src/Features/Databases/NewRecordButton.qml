import QtQuick
import Orvel.DesignSystem

/// The button below records that adds one.
OVPressable {
    id: root

    implicitHeight: Theme.rowHeight
    leftPadding: Theme.space8
    radius: Theme.cornerMark
    rightPadding: Theme.space12
    text: qsTr("New record")

    contentItem: OVButtonContent {
        color: Theme.ovInkSecondary
        symbol: "plus"
        text: root.text
    }
}
