pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// Values as bars: upright ones side by side, or `horizontal` ones below each other, each with its label above it.
OVChart {
    id: chart

    property bool horizontal: false
    /// The value of a full bar; 0 for a scale that fits the largest one. Upright bars always have one that fits.
    property real maximum: 0
    /// Whether each bar tells its value, in place of a scale. Horizontal ones always do.
    property bool valuesShown: false

    readonly property real rowHeight: Theme.chartRow
    readonly property real barHeight: Math.round(Theme.space8 * 1.25)
    readonly property real full: maximum > 0 ? maximum : Math.max(1, ...points.map(point => point.value))
    readonly property real barWidth: Math.max(2, Math.min(Theme.space48 * 0.75, Math.round(axes.pitch * 0.62)))

    function areaOf(index: int): rect {
        return horizontal ? Qt.rect(0, index * rowHeight + 2, width, rowHeight - 4) : uprightArea(index)
    }

    function indexAt(x: real, y: real): int {
        const index = horizontal ? Math.floor(y / rowHeight) : Math.floor((x - axes.plotX) / axes.pitch)
        return index >= 0 && index < points.length ? index : -1
    }

    function uprightArea(index: int): rect {
        const height = Math.max(1, axes.heightOf(points[index]?.value ?? 0))
        return Qt.rect(axes.xOf(index) - barWidth / 2, axes.base - height, barWidth, height)
    }

    implicitHeight: horizontal ? Math.max(Theme.chartHint, points.length * rowHeight) : Theme.chartHeight
    // A horizontal bar begins with its label.
    markOutset: horizontal ? Theme.space8 : 2
    tipShown: !horizontal

    OVChartAxes {
        id: axes
        headroom: chart.valuesShown ? Theme.sizeCaption * 2 : Theme.space8
        points: chart.horizontal ? [] : chart.points
        scaleShown: !chart.valuesShown
        visible: !chart.horizontal
    }

    Repeater {
        model: chart.points.length

        Item {
            id: bar

            required property int index
            readonly property var point: chart.points[index]
            readonly property rect area: chart.areaOf(index)
            property real length: chart.horizontal ? area.width * Math.min(1, (point?.value ?? 0) / chart.full)
                                                   : (point?.value ?? 0) > 0 ? area.height : 0
            readonly property real shown: length * chart.growth

            Behavior on length {
                enabled: chart.growth === 1
                NumberAnimation { duration: Theme.durationSpring; easing.type: Easing.OutCubic }
            }

            height: area.height
            opacity: chart.strengthOf(index)
            width: area.width
            x: area.x
            y: area.y

            Behavior on opacity {
                NumberAnimation { duration: Theme.durationHover }
            }

            // Round at its end, and flat where it stands on the base.
            Item {
                clip: true
                height: bar.shown
                visible: !chart.horizontal
                width: parent.width
                y: parent.height - height

                Rectangle {
                    color: chart.colorOf(bar.index)
                    height: parent.height + radius
                    radius: Math.min(Theme.cornerMark, width / 2)
                    width: parent.width
                }
            }

            OVText {
                anchors.horizontalCenter: parent.horizontalCenter
                font.weight: Font.DemiBold
                role: OVText.Caption
                color: Theme.ovInk
                text: bar.point?.valueText ?? ""
                visible: chart.valuesShown && !chart.horizontal && implicitWidth <= axes.pitch
                y: parent.height - bar.shown - height - 2
                Accessible.ignored: true
            }

            OVLazyLoader {
                active: chart.horizontal
                anchors.fill: parent

                sourceComponent: OVBarRow {
                    barHeight: chart.barHeight
                    color: chart.colorOf(bar.index)
                    label: bar.point?.label ?? ""
                    length: bar.shown
                    valueText: bar.point?.valueText ?? ""
                }
            }
        }
    }
}
