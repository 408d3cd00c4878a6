import QtQuick
import Orvel.DesignSystem

/// The wash under something that the pointer is over.
Rectangle {
    id: root

    property bool hovered: false
    property bool pressed: false
    /// The chosen state keeps the wash.
    property bool chosen: false

    anchors.fill: parent
    color: pressed ? Theme.ovBorder : Theme.ovHover
    opacity: hovered || pressed || chosen ? 1 : 0
    radius: Theme.cornerField

    Behavior on opacity {
        NumberAnimation { duration: Theme.durationHover }
    }
}
