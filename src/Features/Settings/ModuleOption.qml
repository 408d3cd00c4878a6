import QtQuick
import Orvel.DesignSystem

/// A module to show or to hide.
OVPressable {
    id: root

    required property string symbol
    required property string detail

    leftPadding: Theme.space12
    padding: Theme.space8
    rightPadding: Theme.space12
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.description: detail
    OVAccessible.role: Accessible.CheckBox

    background: HoverWash {
        hovered: root.hovered
        pressed: root.down
        radius: root.radius
    }
    contentItem: Row {
        spacing: Theme.space12

        OVIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            color: !root.checked ? Theme.ovInkTertiary : Theme.accentIcons ? Theme.accent : Theme.ovInk
            filled: root.checked
            size: Theme.iconButton
            symbol: root.symbol
        }

        OVLabelPair {
            anchors.verticalCenter: parent.verticalCenter
            detail: root.detail
            opacity: root.checked ? 1 : 0.75
            title: root.text
            width: parent.width - icon.width - mark.width - 2 * parent.spacing
        }

        OVIcon {
            id: mark

            anchors.verticalCenter: parent.verticalCenter
            color: root.checked ? Theme.accent : Theme.ovInkTertiary
            size: Theme.iconHeader
            symbol: root.checked ? "checkmark.circle.fill" : "circle"
        }
    }
}
