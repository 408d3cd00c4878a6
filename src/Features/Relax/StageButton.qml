import QtQuick
import Orvel.DesignSystem

/// A round button of an icon on the stage.
OVIconButton {
    id: root

    color: Qt.rgba(1, 1, 1, 0.94)
    filled: false
    radius: height / 2

    background: Rectangle {
        color: Qt.rgba(0, 0, 0, root.down ? 0.66 : root.hovered ? 0.56 : 0.42)
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
}
