import QtQuick

/// Turns the wheel's or touchpad's movement into whole steps: 1 for one notch away from the user.
WheelHandler {
    id: root

    property real pending: 0

    signal stepped(steps: int)

    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad

    onWheel: event => {
        pending += event.angleDelta.y / 120
        const steps = Math.trunc(pending)
        if (steps !== 0) {
            pending -= steps
            stepped(steps)
        }
    }
}
