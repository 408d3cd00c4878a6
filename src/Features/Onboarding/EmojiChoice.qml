import QtQuick
import Orvel.DesignSystem

/// One emoji of a row to choose from.
OVPressable {
    id: root

    Accessible.checkable: true
    Accessible.checked: checked
    OVAccessible.role: Accessible.RadioButton

    background: Rectangle {
        border.color: root.checked ? Theme.accent : root.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: root.checked ? 2 : Theme.lineWidth
        color: root.checked ? Theme.ovHover : root.hovered ? Theme.ovSubtle : Theme.ovSurface
        radius: root.radius
    }
    contentItem: Item {
        OVEmoji {
            anchors.centerIn: parent
            size: Theme.iconTile
            text: root.text
        }
    }
}
