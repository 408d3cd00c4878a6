import QtQuick
import Orvel.DesignSystem

/// The ring around what has the keyboard's focus: put it into a control and bind `shown` to `visualFocus`.
Rectangle {
    id: root

    property bool shown: false
    /// Corner radius of what the ring goes around.
    property real targetRadius: Theme.cornerField

    anchors.fill: parent
    anchors.margins: -4
    border.color: Qt.alpha(Theme.accent, 0.6)
    border.width: 2
    color: "transparent"
    radius: targetRadius > 0 ? targetRadius + 4 : 0
    visible: shown
    z: 1
}
