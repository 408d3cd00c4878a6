import QtQuick
import Orvel.DesignSystem

/// A tile that leads to where its number comes from. The number rolls in when the tile appears.
OVPressable {
    id: root

    property string symbol
    property string label
    property string value
    property bool rolled: false

    implicitWidth: 160
    padding: Theme.space16
    radius: Theme.cornerCard
    Accessible.name: label + ", " + value

    Component.onCompleted: rolled = true

    background: Rectangle {
        border.color: root.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: root.down ? Theme.ovSubtle : Theme.ovSurface
        radius: root.radius
    }
    contentItem: OVTileContent {
        label: root.label
        symbol: root.symbol
        value: root.rolled ? root.value : root.value.replace(/\d/g, "0")
    }
}
