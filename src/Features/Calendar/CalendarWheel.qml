import QtQuick
import Orvel.DesignSystem

/// The wheel over a grid of days: first it scrolls the screen as far as that goes, then it steps. A swipe to the side
/// steps at once.
Item {
    id: root

    /// What the days are in.
    required property Flickable view

    signal stepped(delta: int)

    anchors.fill: parent

    /// Whether the view can go on in the direction of the wheel.
    function scrolls(delta: real): bool {
        return delta > 0 ? !view.atYBeginning : !view.atYEnd
    }

    WheelHandler {
        id: wheel

        property real pendingX: 0
        property real pendingY: 0

        function take(pending: real): int {
            return Math.trunc(pending / 120)
        }

        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        blocking: false
        orientation: Qt.Vertical
        onWheel: event => {
            const sideways = Math.abs(event.angleDelta.x) > Math.abs(event.angleDelta.y)
            const delta = sideways ? event.angleDelta.x : event.angleDelta.y
            if (!sideways && root.scrolls(delta)) {
                rest.restart()
                pendingY = 0
                return
            }
            // What is left of the movement that has scrolled to the end does not go on to another month.
            if (!sideways && rest.running)
                return rest.restart()
            pendingX += sideways ? delta : 0
            pendingY += sideways ? 0 : delta
            const steps = take(pendingX) + take(pendingY)
            pendingX %= 120
            pendingY %= 120
            if (steps !== 0)
                root.stepped(-steps)
        }
    }

    Timer {
        id: rest
        interval: Theme.tooltipDelay
    }
}
