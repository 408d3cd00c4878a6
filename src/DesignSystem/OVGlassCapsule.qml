import QtQuick
import Orvel.DesignSystem

/// The ground of bars, docks and capsules: glass where the user likes it, plain paper otherwise.
Rectangle {
    id: root

    border.color: Theme.ovBorder
    border.width: Theme.lineWidth
    color: Theme.glassySurfaces ? Qt.alpha(Theme.ovSurface, Theme.dark ? 0.88 : 0.84) : Theme.ovSurface
    radius: height / 2

    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.lineWidth
        border.color: Qt.rgba(1, 1, 1, Theme.dark ? 0.05 : 0.6)
        border.width: Theme.lineWidth
        color: "transparent"
        radius: Math.max(0, root.radius - Theme.lineWidth)
        visible: Theme.glassySurfaces
    }
}
