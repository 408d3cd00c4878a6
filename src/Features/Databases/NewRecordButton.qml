import QtQuick
import Orvel.DesignSystem

/// The button below records that adds one.
OVPressable {
    id: root

    implicitHeight: Theme.rowHeight + Theme.space8
    leftPadding: Theme.space12
    radius: Theme.cornerMark
    rightPadding: Theme.space12
    text: qsTr("New record")

    contentItem: OVButtonContent {
        color: Theme.ovInkSecondary
        symbol: "plus"
        text: root.text
    }
}
