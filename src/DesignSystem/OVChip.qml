import QtQuick
import Orvel.DesignSystem

/// A pill that can be chosen. Set `checkable`, or bind `checked` to what the model says.
OVPressable {
    id: root

    property string symbol
    /// Whether its words begin with a capital, whatever the text has.
    property bool capitalized: false

    implicitHeight: Theme.chipHeight
    leftPadding: Theme.space12
    radius: height / 2
    rightPadding: Theme.space12
    Accessible.checkable: true
    Accessible.checked: checked
    OVAccessible.role: Accessible.CheckBox

    background: Rectangle {
        border.color: root.checked ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: root.checked ? Theme.ovHover
             : root.down ? Theme.ovHover
             : root.hovered && root.enabled ? Theme.ovSubtle : Qt.alpha(Theme.ovSurface, 0.6)
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
    contentItem: OVButtonContent {
        capitalization: root.capitalized ? Font.Capitalize : Font.MixedCase
        color: root.checked ? Theme.ovInk : Theme.ovInkSecondary
        filled: root.checked
        iconSize: Theme.sizeBody
        symbol: root.symbol
        text: root.text
        textSize: Theme.sizeCaption
    }
}
