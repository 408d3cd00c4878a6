import QtQuick
import Orvel.DesignSystem

/// A module in the dock: it rises a little under the pointer, and a dot marks the chosen one.
OVPressable {
    id: root

    required property string symbol
    property bool chosen: false

    readonly property bool raised: (hovered || visualFocus) && !down

    implicitHeight: Theme.fieldHeight + Theme.space8
    implicitWidth: implicitHeight
    pressedScale: 0.92
    toolTip: text
    Accessible.name: text
    OVAccessible.role: Accessible.PageTab
    Accessible.selected: chosen

    contentItem: Item {
        OVIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.accentIcons || root.chosen ? Theme.accent : root.hovered ? Theme.ovInk : Theme.ovInkSecondary
            filled: root.chosen
            scale: root.raised ? 1.12 : 1
            size: Theme.iconHeader
            symbol: root.symbol
            y: Math.round((parent.height - height) / 2) - (root.raised ? 2 : 0)

            Behavior on scale {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
            Behavior on y {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
        }

        Rectangle {
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.space4
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.accent
            height: width
            opacity: root.chosen ? 1 : 0
            radius: width / 2
            width: Theme.space4

            Behavior on opacity {
                NumberAnimation { duration: Theme.durationScreen }
            }
        }
    }
}
