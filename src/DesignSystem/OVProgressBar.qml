import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// How far something has come, `value` going from 0 to 1.
T.ProgressBar {
    id: root

    property color color: Theme.accent
    /// Where the fill stands while it glides to the value.
    property real shownPosition: position

    implicitHeight: 6
    implicitWidth: 160

    background: Rectangle {
        color: Theme.ovHover
        radius: height / 2
    }
    contentItem: Item {
        Rectangle {
            color: root.color
            height: parent.height
            radius: height / 2
            visible: root.position > 0
            width: Math.max(height, root.shownPosition * parent.width)
        }
    }

    Behavior on shownPosition {
        NumberAnimation { duration: Theme.durationSpring; easing: Theme.springEasing }
    }
}
