import QtQuick
import Orvel.DesignSystem

/// The value that is pointed out in a chart, above its area and within the chart.
Rectangle {
    id: root

    required property rect area
    required property string label
    required property string valueText
    readonly property color ink: Theme.inkMode || Theme.dark ? Theme.ovInk : Theme.ovCanvas

    border.color: Theme.ovBorderStrong
    border.width: Theme.inkMode ? Theme.lineWidth : 0
    color: Theme.inkMode ? Theme.ovSurface : Theme.dark ? Theme.ovBorderStrong : Theme.ovInk
    height: row.height + Theme.space8
    radius: Theme.cornerMark
    width: row.width + 2 * Theme.space8
    x: Math.round(Math.max(0, Math.min((parent?.width ?? 0) - width, area.x + (area.width - width) / 2)))
    y: Math.round(area.y - height - Theme.space4)
    z: 2
    Accessible.ignored: true

    Row {
        id: row
        anchors.centerIn: parent
        spacing: Theme.space8

        OVText {
            color: root.ink
            opacity: 0.8
            role: OVText.Caption
            text: root.label
            width: Math.min(implicitWidth, Math.max(0, (root.parent?.width ?? 0) - number.width - 4 * Theme.space8))
        }

        OVText {
            id: number
            color: root.ink
            font.weight: Font.DemiBold
            role: OVText.Caption
            text: root.valueText
        }
    }
}
