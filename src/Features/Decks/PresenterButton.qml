import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// A button of an icon on the stage.
OVPressable {
    id: root

    property string symbol

    implicitHeight: Theme.iconButtonSize
    implicitWidth: Theme.iconButtonSize
    pressedScale: 0.94
    toolTip: text

    background: Rectangle {
        color: root.hovered || root.down || root.checked ? PresenterStyle.hover : "transparent"
        radius: root.radius
    }
    contentItem: Item {
        OVIcon {
            anchors.centerIn: parent
            color: root.hovered || root.checked ? PresenterStyle.ink : PresenterStyle.inkSecondary
            filled: root.checked
            size: Theme.iconButton
            symbol: root.symbol
        }
    }
}
