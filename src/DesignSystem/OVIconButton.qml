import QtQuick
import Orvel.DesignSystem

/// A button of an icon alone. Its `text` is never drawn: it is the tooltip and the accessible name.
OVPressable {
    id: root

    property string symbol
    property color color: Theme.ovInkSecondary
    property int iconSize: Theme.iconButton
    property bool filled: checked

    implicitHeight: Theme.iconButtonSize
    implicitWidth: Theme.iconButtonSize
    pressedScale: 0.94
    toolTip: text

    contentItem: Item {
        implicitHeight: icon.size
        implicitWidth: icon.size

        OVIcon {
            id: icon

            anchors.centerIn: parent
            color: root.hovered && root.enabled && root.color === Theme.ovInkSecondary ? Theme.ovInk : root.color
            filled: root.filled
            size: root.iconSize
            symbol: root.symbol
        }
    }
}
