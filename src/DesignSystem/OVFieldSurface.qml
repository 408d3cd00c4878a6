import QtQuick
import Orvel.DesignSystem

/// The frame of a field: a surface with a line that strengthens under the pointer and takes the accent while
/// the field is edited.
Rectangle {
    id: surface

    property bool hovered: false
    property bool active: false
    property bool invalid: false
    property bool ringVisible: false

    radius: Theme.cornerField
    color: Theme.ovSurface
    border.width: Theme.lineWidth
    border.color: invalid ? Theme.ovDanger
                : active && !ringVisible ? Theme.accent
                : hovered || active ? Theme.ovBorderStrong : Theme.ovBorder

    Behavior on border.color {
        ColorAnimation { duration: Theme.durationHover }
    }

    OVFocusRing {
        shown: surface.ringVisible
        targetRadius: surface.radius
    }
}
