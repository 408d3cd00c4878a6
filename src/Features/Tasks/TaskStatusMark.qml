import QtQuick
import Orvel.DesignSystem

/// The round mark of a task's status; on completion it fills and its check mark draws itself in.
Item {
    id: mark

    required property string symbol
    required property int tone
    required property bool isDone

    implicitHeight: Theme.iconButton
    implicitWidth: Theme.iconButton

    OVIcon {
        anchors.centerIn: parent
        color: mark.tone === OVBadge.Warning ? Theme.ovWarning : Theme.ovInkTertiary
        size: mark.height
        symbol: mark.symbol
        visible: !mark.isDone
    }

    Rectangle {
        anchors.centerIn: parent
        color: Theme.ovSuccess
        height: width
        opacity: mark.isDone ? 1 : 0
        radius: width / 2
        scale: mark.isDone ? 1 : 0.6
        width: Math.round(mark.width * 0.86)

        Behavior on scale {
            NumberAnimation { duration: Theme.durationSpring; easing: Theme.springEasing }
        }

        OVCheckMark {
            anchors.centerIn: parent
            color: Theme.dark ? Theme.ovCanvas : Theme.ovSurface
            height: width
            shown: mark.isDone
            width: parent.width
        }
    }
}
