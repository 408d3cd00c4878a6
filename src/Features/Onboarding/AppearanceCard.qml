import QtQuick
import Orvel.DesignSystem

/// An appearance to choose, with a picture of it.
OVPressable {
    id: root

    required property string symbol
    /// `OVLook`s.
    required property var looks

    padding: Theme.space8
    radius: Theme.cornerCard
    Accessible.checkable: true
    Accessible.checked: checked
    OVAccessible.role: Accessible.RadioButton

    background: Rectangle {
        border.color: root.checked ? Theme.accent : root.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: root.checked ? 2 : Theme.lineWidth
        color: root.checked ? Theme.ovSubtle : Theme.ovSurface
        radius: root.radius
    }
    contentItem: Column {
        spacing: Theme.space8

        OVLookPreview {
            height: Math.round(width * 0.8)
            looks: root.looks
            width: parent.width
        }

        OVButtonContent {
            color: root.checked ? Theme.ovInk : Theme.ovInkSecondary
            filled: root.checked
            height: Theme.chipHeight
            symbol: root.symbol
            text: root.text
            width: parent.width
        }
    }
}
