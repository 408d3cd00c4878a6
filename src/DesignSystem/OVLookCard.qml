import QtQuick
import Orvel.DesignSystem

/// An appearance to choose: a small picture of the window in it, and its name.
OVPressable {
    id: root

    /// `OVLook`s, see `OVLookPreview`.
    required property var looks
    required property string symbol
    /// The font of the name; that of the window if empty.
    property string family
    /// Height of the picture, as a part of its width.
    property real ratio: 0.8

    padding: Theme.space8
    radius: Theme.cornerCard
    Accessible.checkable: true
    Accessible.checked: checked
    OVAccessible.role: Accessible.RadioButton

    background: OVOptionSurface {
        chosen: root.checked
        hovered: root.hovered
        radius: root.radius
    }
    contentItem: Column {
        spacing: Theme.space8

        OVLookPreview {
            height: Math.round(width * root.ratio)
            looks: root.looks
            width: parent.width
        }

        OVButtonContent {
            color: root.checked ? Theme.ovInk : Theme.ovInkSecondary
            family: root.family !== "" ? root.family : Theme.fontFamily
            filled: root.checked
            height: Theme.chipHeight
            symbol: root.symbol
            text: root.text
            width: parent.width
        }
    }
}
