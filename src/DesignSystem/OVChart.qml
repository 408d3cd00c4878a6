pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// What all charts share: their values, a cursor that goes from value to value by the arrow keys, Home and End and is
/// read out, the tip on the value under the pointer or the cursor, and growing in at first sight.
///
/// A chart draws itself from `points` and `growth` and says by `areaOf` and `indexAt` where it did.
FocusScope {
    id: chart

    /// Objects with a `label`, a `value` and a `valueText`; `shortLabel` is for an axis where the label is too long.
    property var points: []
    /// One for each point; without it all are drawn in the accent.
    property var colors: []
    /// What it shows.
    property string name
    /// Corner radius of the focus ring around a value.
    property real markRadius: Theme.cornerMark
    /// How far that ring stands off the value's sides.
    property real markOutset: 2
    /// Whether a tip tells the value; not where the chart does that by itself.
    property bool tipShown: true

    property int hoveredIndex: -1
    property int focusedIndex: -1
    /// Where Tab leads to.
    property int lastIndex: 0
    /// The value that is pointed out; -1 for none.
    readonly property int current: focusedIndex >= 0 && focusedIndex < points.length ? focusedIndex
                                 : hoveredIndex < points.length ? hoveredIndex : -1
    /// How much of each value is shown, from 0 to 1.
    property real growth
    default property alias drawing: canvas.data

    /// The area of a value in the chart.
    function areaOf(index: int): rect {
        return Qt.rect(0, 0, 0, 0)
    }

    /// The value at a place in the chart; -1 for none.
    function indexAt(x: real, y: real): int {
        return -1
    }

    function colorOf(index: int): color {
        return colors[index] ?? Theme.accent
    }

    /// The opacity of a value beside the one that is pointed out.
    function strengthOf(index: int): real {
        return current < 0 || current === index ? 1 : 0.4
    }

    function go(index: int): bool {
        const mark = marks.itemAt(Math.max(0, Math.min(index, marks.count - 1)))
        mark?.forceActiveFocus(Qt.TabFocusReason)
        return mark !== null
    }

    /// Does what the key stands for; false for any other key.
    function press(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Up:
            return go(lastIndex - 1)
        case Qt.Key_Right:
        case Qt.Key_Down:
            return go(lastIndex + 1)
        case Qt.Key_Home:
            return go(0)
        case Qt.Key_End:
            return go(marks.count - 1)
        }
        return false
    }

    implicitHeight: Theme.chartHeight
    implicitWidth: Theme.fieldWidth
    Accessible.name: name
    Accessible.role: Accessible.Chart

    Keys.onPressed: event => {
        event.accepted = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)) && press(event.key)
    }

    NumberAnimation on growth {
        duration: 1.5 * Theme.durationSpring
        easing.type: Easing.OutCubic
        from: 0
        to: 1
    }

    HoverHandler {
        onHoveredChanged: if (!hovered) chart.hoveredIndex = -1
        onPointChanged: if (hovered) chart.hoveredIndex = chart.indexAt(point.position.x, point.position.y)
    }

    Item {
        id: canvas
        anchors.fill: parent
    }

    Repeater {
        id: marks
        model: chart.points.length

        Item {
            id: mark

            required property int index
            readonly property rect area: chart.areaOf(index)
            readonly property var point: chart.points[index]

            activeFocusOnTab: activeFocus || index === Math.min(chart.lastIndex, marks.count - 1)
            height: area.height
            width: area.width
            x: area.x
            y: area.y
            Accessible.focusable: true
            Accessible.name: point ? qsTr("%1, %2").arg(point.label).arg(point.valueText) : ""
            Accessible.role: Accessible.ListItem
            onActiveFocusChanged: {
                if (activeFocus)
                    chart.lastIndex = index
                chart.focusedIndex = activeFocus ? index : chart.focusedIndex === index ? -1 : chart.focusedIndex
            }

            OVFocusRing {
                anchors.bottomMargin: -2
                anchors.leftMargin: -chart.markOutset
                anchors.rightMargin: -chart.markOutset
                anchors.topMargin: -2
                shown: mark.activeFocus
                targetRadius: chart.markRadius
            }
        }
    }

    OVChartTip {
        area: chart.current < 0 ? Qt.rect(0, 0, 0, 0) : chart.areaOf(chart.current)
        label: chart.points[chart.current]?.label ?? ""
        valueText: chart.points[chart.current]?.valueText ?? ""
        visible: chart.tipShown && chart.current >= 0
    }
}
