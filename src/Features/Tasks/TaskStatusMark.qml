pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The round mark of a task's status; on completion it fills and its check mark draws itself in.
Item {
    id: mark

    required property string symbol
    required property int tone
    required property bool isDone
    /// Whether a change shows as motion: a task that is completed already is shown as it is.
    property bool moves: false

    implicitHeight: Theme.iconButton
    implicitWidth: Theme.iconButton

    Component.onCompleted: moves = true

    OVIcon {
        anchors.centerIn: parent
        color: mark.tone === OVBadge.Warning ? Theme.ovWarning : Theme.ovInkTertiary
        size: mark.height
        symbol: mark.symbol
        visible: !mark.isDone
    }

    OVLazyLoader {
        active: mark.isDone
        anchors.centerIn: parent
        height: width
        width: Math.round(mark.width * 0.86)

        sourceComponent: Rectangle {
            id: disc

            property bool filled: !mark.moves

            color: Theme.ovSuccess
            radius: width / 2
            scale: filled ? 1 : 0.6

            Component.onCompleted: filled = true

            Behavior on scale {
                NumberAnimation { duration: Theme.durationSpring; easing: Theme.springEasing }
            }

            OVCheckMark {
                color: Theme.dark ? Theme.ovCanvas : Theme.ovSurface
                height: disc.height
                shown: disc.filled
                width: disc.width
            }
        }
    }
}
