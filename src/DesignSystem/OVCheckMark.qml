import QtQuick
import QtQuick.Shapes
import Orvel.DesignSystem

/// A check mark that draws itself in when it is shown.
Shape {
    id: mark

    property bool shown: false
    property color color: Theme.onAccent
    property real progress: shown ? 1 : 0

    /// The bend lies at this part of the stroke's length.
    readonly property real bend: 0.36
    readonly property real first: Math.min(1, progress / bend)
    readonly property real second: Math.max(0, (progress - bend) / (1 - bend))

    width: 18
    height: 18
    visible: progress > 0

    Behavior on progress {
        NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
    }

    ShapePath {
        strokeColor: mark.color
        strokeWidth: mark.width / 9
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap
        joinStyle: ShapePath.RoundJoin
        startX: mark.width * 0.27
        startY: mark.height * 0.52

        PathLine {
            x: mark.width * (0.27 + 0.16 * mark.first)
            y: mark.height * (0.52 + 0.16 * mark.first)
        }
        PathLine {
            x: mark.width * (0.27 + 0.16 * mark.first + 0.3 * mark.second)
            y: mark.height * (0.52 + 0.16 * mark.first - 0.34 * mark.second)
        }
    }
}
