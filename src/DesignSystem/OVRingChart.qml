pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import Orvel.DesignSystem

/// Parts of a whole as sectors of a ring, and beside it the list of them. A part's `symbol` tells it apart where its
/// colour does not.
OVChart {
    id: chart

    /// What all parts together are called, below their sum.
    property string unit

    readonly property real total: points.reduce((sum, point) => sum + point.value, 0)
    readonly property real diameter: Math.min(height, width * 0.46)
    readonly property real radius: diameter / 2
    /// Of the outer radius.
    readonly property real innerRadius: 0.62
    readonly property real gapAngle: points.filter(point => point.value > 0).length > 1 ? 1.5 : 0
    readonly property real listX: diameter + Theme.space24
    readonly property real rowHeight: Math.max(Theme.rowHeight, Theme.sizeDense * 2)
    readonly property real listY: (height - rowHeight * points.length) / 2

    /// Degrees clockwise from the top to where a part begins.
    function startOf(index: int): real {
        let before = 0
        for (let i = 0; i < index; ++i)
            before += points[i]?.value ?? 0
        return total > 0 ? 360 * before / total : 0
    }

    function areaOf(index: int): rect {
        return Qt.rect(listX - Theme.space4, listY + index * rowHeight, width - listX + Theme.space8, rowHeight)
    }

    function indexAt(x: real, y: real): int {
        if (x >= listX) {
            const row = Math.floor((y - listY) / rowHeight)
            return row >= 0 && row < points.length ? row : -1
        }
        const dx = x - radius
        const dy = y - height / 2
        const distance = Math.hypot(dx, dy) / radius
        if (distance < innerRadius || distance > 1)
            return -1
        const angle = (Math.atan2(dx, -dy) * 180 / Math.PI + 360) % 360
        return points.findIndex((point, index) => angle >= startOf(index) && angle < startOf(index) + 360 * point.value / total)
    }

    // The list says it all.
    tipShown: false

    Item {
        height: chart.diameter
        width: chart.diameter
        y: (chart.height - height) / 2

        // Where there is nothing, its place is shown.
        Rectangle {
            anchors.fill: parent
            border.color: Theme.ovHover
            border.width: chart.radius * (1 - chart.innerRadius)
            color: "transparent"
            radius: chart.radius
            visible: chart.total <= 0
        }

        Repeater {
            model: chart.points.length

            Shape {
                id: sector

                required property int index
                readonly property real share: chart.total > 0 ? (chart.points[index]?.value ?? 0) / chart.total : 0

                anchors.fill: parent
                opacity: chart.strengthOf(index)
                visible: share > 0

                Behavior on opacity {
                    NumberAnimation { duration: Theme.durationHover }
                }

                ShapePath {
                    capStyle: ShapePath.FlatCap
                    fillColor: "transparent"
                    strokeColor: chart.colorOf(sector.index)
                    strokeWidth: chart.radius * (1 - chart.innerRadius)

                    PathAngleArc {
                        centerX: chart.radius
                        centerY: chart.radius
                        radiusX: chart.radius * (1 + chart.innerRadius) / 2
                        radiusY: radiusX
                        startAngle: -90 + (chart.startOf(sector.index) + chart.gapAngle / 2) * chart.growth
                        sweepAngle: Math.max(0.5, 360 * sector.share - chart.gapAngle) * chart.growth
                    }
                }
            }
        }

        Column {
            anchors.centerIn: parent
            width: chart.diameter * chart.innerRadius * 0.9

            OVText {
                font.pixelSize: Math.min(Theme.sizeTile, Math.round(chart.diameter / 6))
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                text: ChartScale.shortNumber(chart.total)
                width: parent.width
                Accessible.ignored: true
            }

            OVText {
                color: Theme.ovInkSecondary
                horizontalAlignment: Text.AlignHCenter
                role: OVText.Caption
                text: chart.unit
                visible: text !== "" && chart.diameter > 8 * Theme.sizeCaption
                width: parent.width
                Accessible.ignored: true
            }
        }
    }

    Repeater {
        model: chart.points.length

        Item {
            id: row

            required property int index
            readonly property var point: chart.points[index]

            height: chart.rowHeight
            width: chart.width - chart.listX
            x: chart.listX
            y: chart.listY + index * chart.rowHeight

            OVIcon {
                id: symbol
                anchors.verticalCenter: parent.verticalCenter
                color: chart.colorOf(row.index)
                symbol: row.point?.symbol ?? "circle"
            }

            OVText {
                anchors.left: symbol.right
                anchors.leftMargin: Theme.space8
                anchors.right: number.left
                anchors.rightMargin: Theme.space8
                anchors.verticalCenter: parent.verticalCenter
                role: OVText.Dense
                text: row.point?.label ?? ""
                Accessible.ignored: true
            }

            OVText {
                id: number
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                font.weight: Font.DemiBold
                role: OVText.Dense
                text: row.point?.valueText ?? ""
                Accessible.ignored: true
            }
        }
    }
}
