import QtQuick
import Orvel.DesignSystem

/// Scrolls a list while the pointer drags something near its upper or lower edge.
FrameAnimation {
    id: root

    required property ListView list
    property bool dragging: false
    /// Where the pointer is in the list.
    property real pointerY: 0

    readonly property real edge: 2 * Theme.space32
    /// How far the pointer is within one of the edges; negative at the upper one.
    readonly property real reach: Math.max(0, pointerY - list.height + edge) - Math.max(0, edge - pointerY)

    signal scrolled()

    running: dragging && reach !== 0
    onTriggered: {
        const end = list.originY + list.contentHeight - list.height
        list.contentY = Math.max(list.originY, Math.min(end, list.contentY + reach * frameTime * 12))
        scrolled()
    }
}
