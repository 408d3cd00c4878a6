import QtQuick
import Orvel.DesignSystem

/// What every floating thing stands on: a surface with a hair line over a soft shadow.
Item {
    id: surface

    property real radius: Theme.cornerCard

    OVShadow {
        anchors.fill: parent
        radius: surface.radius
    }

    Rectangle {
        anchors.fill: parent
        radius: surface.radius
        color: Theme.ovSurface
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
    }
}
