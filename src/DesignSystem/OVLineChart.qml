pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import Orvel.DesignSystem

/// Values in the course of time, as a line over an area.
OVChart {
    id: chart

    readonly property color ink: colors[0] ?? Theme.accent
    readonly property int dotSize: Theme.space8
    readonly property list<point> line: points.map((point, index) => place(index))
    readonly property list<point> area: points.length === 0 ? [] : [
        Qt.point(axes.xOf(0), axes.base), ...line, Qt.point(axes.xOf(points.length - 1), axes.base),
        Qt.point(axes.xOf(0), axes.base)
    ]

    function place(index: int): point {
        return Qt.point(axes.xOf(index), axes.base - axes.heightOf(points[index]?.value ?? 0) * growth)
    }

    function areaOf(index: int): rect {
        const middle = place(index)
        return Qt.rect(middle.x - dotSize / 2, middle.y - dotSize / 2, dotSize, dotSize)
    }

    function indexAt(x: real, y: real): int {
        const index = Math.floor((x - axes.plotX) / axes.pitch)
        return index >= 0 && index < points.length ? index : -1
    }

    markRadius: dotSize / 2

    OVChartAxes {
        id: axes
        points: chart.points
    }

    Shape {
        anchors.fill: parent

        ShapePath {
            fillColor: Qt.alpha(chart.ink, Theme.dark ? 0.2 : 0.12)
            strokeColor: "transparent"
            strokeWidth: 0

            PathPolyline { path: chart.area }
        }

        ShapePath {
            capStyle: ShapePath.RoundCap
            fillColor: "transparent"
            joinStyle: ShapePath.RoundJoin
            strokeColor: chart.ink
            strokeWidth: 2

            PathPolyline { path: chart.line }
        }
    }

    // A single value has no line.
    Repeater {
        model: chart.points.length

        Rectangle {
            required property int index
            readonly property point middle: chart.place(index)
            readonly property bool isPointedOut: chart.current === index

            border.color: Theme.ovSurface
            border.width: isPointedOut ? 2 : 0
            color: chart.ink
            height: width
            radius: width / 2
            visible: isPointedOut || chart.points.length === 1
            width: chart.dotSize + (isPointedOut ? 4 : 0)
            x: middle.x - width / 2
            y: middle.y - height / 2
        }
    }
}
