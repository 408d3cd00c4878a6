import QtQuick
import Orvel.DesignSystem

/// The round button that marks a habit as done today: its emoji until then, a check mark on its colour from then on.
OVPressable {
    id: root

    required property bool isDone
    required property string emoji
    required property color tint
    required property color markColor

    implicitHeight: Theme.roundMark
    implicitWidth: Theme.roundMark
    pressedScale: 0.92
    radius: height / 2
    tabStop: false
    toolTip: text
    washed: false

    background: Rectangle {
        border.color: root.isDone ? root.tint : root.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: root.isDone ? root.tint : root.hovered ? Theme.ovHover : Theme.ovSubtle
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationScreen }
        }
    }
    contentItem: Item {
        OVEmoji {
            anchors.centerIn: parent
            opacity: root.isDone ? 0 : 1
            scale: root.isDone ? 0.6 : 1
            size: Theme.iconTile
            text: root.emoji

            Behavior on opacity {
                NumberAnimation { duration: Theme.durationScreen }
            }
            Behavior on scale {
                NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
            }
        }

        OVCheckMark {
            anchors.centerIn: parent
            color: root.markColor
            height: width
            shown: root.isDone
            width: Theme.iconTile + Theme.space4
        }
    }
}
