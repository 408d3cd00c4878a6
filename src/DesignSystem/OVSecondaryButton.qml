import QtQuick
import Orvel.DesignSystem

/// A button beside the primary one, drawn with a line.
OVPressable {
    id: root

    property string symbol
    /// Colours the words as those of a button that takes something away.
    property bool destructive: false

    implicitHeight: Theme.buttonHeight
    leftPadding: Theme.space12 + 2
    rightPadding: Theme.space12 + 2

    background: Rectangle {
        border.color: root.hovered && root.enabled ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: root.down ? Theme.ovHover : root.hovered && root.enabled ? Theme.ovSubtle : Theme.ovSurface
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
    contentItem: OVButtonContent {
        color: root.destructive ? Theme.ovDanger : Theme.ovInk
        symbol: root.symbol
        text: root.text
    }
}
