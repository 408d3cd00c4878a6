import QtQuick
import Orvel.DesignSystem

/// How an item of a list or grid goes: it fades out, and its place is given up, where the pointer is over it only
/// once that moves. Until then it takes the clicks that were not meant for what comes next.
MouseArea {
    id: root

    required property HoverHandler hover
    /// What fades out.
    required property Item content
    /// Whether the place is given up only when nothing is seen any more.
    property bool fadesFirst: false
    property point rest
    property bool hasMoved: false
    property bool isReleased: false

    /// The place may be given up.
    signal released()
    /// The item does not go, or is gone already.
    signal ended()

    function begin() {
        rest = hover.point.scenePosition
        hasMoved = !hover.hovered
        fading.start()
        settle()
    }

    /// Leaves the item as it is.
    function end() {
        fading.stop()
        ended()
    }

    function settle() {
        if (isReleased || !hasMoved || (fadesFirst && fading.running))
            return
        isReleased = true
        released()
    }

    acceptedButtons: Qt.AllButtons
    anchors.fill: parent
    z: 1

    NumberAnimation {
        id: fading
        target: root.content
        property: "opacity"
        to: 0
        duration: Theme.durationRemoval
        onFinished: root.settle()
    }

    Connections {
        target: root.hover

        function onHoveredChanged() {
            root.hasMoved = true
            root.settle()
        }
        function onPointChanged() {
            const place = root.hover.point.scenePosition
            // Less than a pixel is rounding, not the user's hand.
            if (Math.abs(place.x - root.rest.x) < 1 && Math.abs(place.y - root.rest.y) < 1)
                return
            root.hasMoved = true
            root.settle()
        }
    }
}
