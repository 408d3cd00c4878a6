import QtQuick
import Orvel.DesignSystem

/// What the sidebar and the bars stand on: glass where the user likes it, with a hair line towards the screen.
Rectangle {
    id: root

    /// The side of the line.
    property int edge: Qt.RightEdge

    color: Theme.glassySurfaces ? Qt.alpha(Theme.ovSidebar, Theme.dark ? 0.86 : 0.78) : Theme.ovSidebar

    Rectangle {
        readonly property bool upright: root.edge === Qt.RightEdge

        color: Theme.ovBorder
        height: upright ? root.height : Theme.lineWidth
        width: upright ? Theme.lineWidth : root.width
        x: upright ? root.width - width : 0
        y: root.edge === Qt.BottomEdge ? root.height - height : 0
    }
}
