import QtQuick
import Orvel.DesignSystem

/// A small mark that turns while something is going on; where motion is off it only stands there.
OVIcon {
    id: root

    property bool running: false

    symbol: "arrow.clockwise"
    visible: running
    Accessible.ignored: false
    Accessible.name: qsTr("In progress")
    Accessible.role: Accessible.Animation

    RotationAnimation on rotation {
        duration: 1000
        from: 0
        loops: Animation.Infinite
        running: root.running && root.visible && Theme.motionEnabled
        to: 360
    }
}
