pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The ground of a chart with upright values: the lines of its scale and the labels below, of which only so many are
/// shown as have room.
Item {
    id: axes

    required property var points
    /// Whether lines and numbers of the scale are shown; without them the values stand on the base alone.
    property bool scaleShown: true
    /// Kept free above the highest value.
    property real headroom: Theme.space8

    readonly property var ticks: ChartScale.ticks(Math.max(0, ...points.map(point => point.value)), 4)
    readonly property real highest: ticks[ticks.length - 1]
    readonly property real plotX: scaleShown ? ChartScale.widest(ticks.map(tick => ChartScale.shortNumber(tick)), caption.font) + Theme.space8 : 0
    readonly property real plotWidth: Math.max(0, width - plotX)
    readonly property real base: height - caption.implicitHeight - Theme.space4
    readonly property real pitch: points.length > 0 ? plotWidth / points.length : plotWidth

    readonly property int labelGap: Theme.space12
    readonly property real fullWidth: ChartScale.widest(points.map(point => point.label), caption.font)
    /// Whether all labels find room in full.
    readonly property bool fullLabels: fullWidth + labelGap <= pitch
    readonly property real labelWidth: fullLabels ? fullWidth
                                                  : ChartScale.widest(points.map(point => point.shortLabel ?? point.label), caption.font)
    readonly property int labelStep: ChartScale.labelStep(pitch, Math.min(labelWidth, plotWidth), labelGap)

    function xOf(index: int): real {
        return plotX + (index + 0.5) * pitch
    }

    function heightOf(value: real): real {
        return (base - headroom) * value / highest
    }

    anchors.fill: parent

    // Never shown: its font is that of all labels.
    OVText {
        id: caption
        role: OVText.Caption
        text: "0"
        visible: false
    }

    Repeater {
        model: axes.scaleShown ? axes.ticks : [0]

        Item {
            id: tick

            required property real modelData

            width: axes.width
            y: Math.round(axes.base - axes.heightOf(modelData))

            Rectangle {
                color: tick.modelData === 0 ? Theme.ovBorderStrong : Theme.ovBorder
                height: Theme.lineWidth
                width: axes.plotWidth
                x: axes.plotX
            }

            OVText {
                anchors.verticalCenter: parent.top
                color: Theme.ovInkSecondary
                horizontalAlignment: Text.AlignRight
                role: OVText.Caption
                text: ChartScale.shortNumber(tick.modelData)
                visible: axes.scaleShown
                width: axes.plotX - Theme.space8
                Accessible.ignored: true
            }
        }
    }

    Repeater {
        model: axes.points.length

        OVText {
            required property int index
            readonly property var point: axes.points[index]

            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: (axes.fullLabels ? point?.label : point?.shortLabel ?? point?.label) ?? ""
            // The last one is always shown.
            visible: (axes.points.length - 1 - index) % axes.labelStep === 0
            width: Math.min(implicitWidth, axes.labelStep * axes.pitch - (axes.points.length > 1 ? Theme.space4 : 0))
            x: Math.round(Math.max(0, Math.min(axes.width - width, axes.xOf(index) - width / 2)))
            y: axes.base + Theme.space4
            Accessible.ignored: true
        }
    }
}
