import QtQuick
import Orvel.DesignSystem

/// The one button of a place that does what the place is for.
OVPressable {
    id: root

    property string symbol
    /// Whether the icon stands after the words, as an arrow does.
    property bool symbolTrailing: false
    /// Colours the button as one that takes something away.
    property bool destructive: false

    readonly property color fill: destructive ? Theme.ovDanger : Theme.accent

    implicitHeight: Theme.buttonHeight
    leftPadding: Theme.space16
    rightPadding: Theme.space16

    background: Rectangle {
        color: root.down ? Qt.tint(root.fill, Qt.alpha(Theme.ovCanvas, 0.22))
             : root.hovered && root.enabled ? Qt.tint(root.fill, Qt.alpha(Theme.ovCanvas, 0.12)) : root.fill
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
    contentItem: OVButtonContent {
        color: root.destructive ? (Theme.dark ? Theme.ovCanvas : Theme.ovSurface) : Theme.onAccent
        symbol: root.symbol
        text: root.text
        trailing: root.symbolTrailing
    }
}
