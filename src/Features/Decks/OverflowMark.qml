import QtQuick
import Orvel.DesignSystem

/// Marks a text of the slide that is longer than the room it has.
OVPressable {
    pressedScale: 1
    radius: Theme.cornerMark
    tabStop: false
    toolTip: qsTr("This text doesn't fit the slide.")
    Accessible.name: toolTip
    OVAccessible.role: Accessible.StaticText

    contentItem: Item {
        implicitHeight: Theme.iconRow
        implicitWidth: Theme.iconRow

        Rectangle {
            anchors.fill: parent
            anchors.margins: -2
            color: Theme.ovSurface
            radius: width / 2
        }

        OVIcon {
            anchors.fill: parent
            color: Theme.ovWarning
            size: Theme.iconRow
            symbol: "exclamationmark.triangle"
        }
    }
}
