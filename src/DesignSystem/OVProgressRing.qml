import QtQuick
import QtQuick.Shapes
import Orvel.DesignSystem

/// How far something has come, as a ring that fills clockwise from the top; `value` goes from 0 to 1. What is put
/// into it stands in its middle.
///
/// Small steps are shown as they come, so that the caller decides how often it is drawn; larger ones glide.
Item {
    id: root

    property real value: 0
    property color color: Theme.accent
    property real strokeWidth: Theme.space12
    default property alias content: middle.data
    property real shown: 0

    /// The least that shows the round ends of the stroke.
    readonly property real leastShown: 0.0001
    readonly property real largestStep: 0.01

    implicitHeight: implicitWidth
    implicitWidth: Theme.timerRing
    Accessible.role: Accessible.ProgressBar

    Component.onCompleted: shown = value
    onValueChanged: {
        if (Math.abs(value - shown) > largestStep) {
            // A binding would still have the last value here.
            glide.to = value
            glide.restart()
        } else if (!glide.running) {
            shown = value
        }
    }

    NumberAnimation {
        id: glide
        duration: Theme.durationSpring
        easing.type: Easing.OutCubic
        property: "shown"
        target: root
        onFinished: root.shown = root.value
    }

    component Arc: ShapePath {
        property alias sweep: arc.sweepAngle

        capStyle: ShapePath.RoundCap
        fillColor: "transparent"
        strokeWidth: root.strokeWidth

        PathAngleArc {
            id: arc
            centerX: root.width / 2
            centerY: root.height / 2
            radiusX: (root.width - root.strokeWidth) / 2
            radiusY: (root.height - root.strokeWidth) / 2
            startAngle: -90
        }
    }

    Shape {
        anchors.fill: parent

        Arc {
            strokeColor: Theme.ovHover
            sweep: 360
        }

        Arc {
            strokeColor: root.color
            sweep: 360 * Math.max(root.leastShown, Math.min(1, root.shown))
        }
    }

    Item {
        id: middle
        anchors.centerIn: parent
        height: root.height - 4 * root.strokeWidth
        width: root.width - 4 * root.strokeWidth
    }
}
