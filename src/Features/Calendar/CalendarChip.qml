pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// An item in the cell of a day.
Rectangle {
    id: chip

    required property string title
    required property int tone
    required property bool isDone
    readonly property OVToneColors colors: OVToneColors { tone: chip.tone }

    border.color: Theme.inkMode ? Theme.ovBorderStrong : "transparent"
    border.width: Theme.inkMode ? Theme.lineWidth : 0
    color: colors.fill
    implicitHeight: Math.ceil(label.implicitHeight) + 1
    radius: Math.min(Theme.cornerMark, height / 3)

    OVText {
        id: label
        anchors.fill: parent
        anchors.leftMargin: Theme.space4 + 1
        anchors.rightMargin: Theme.space4 + 1
        color: chip.isDone ? Theme.ovInkTertiary : chip.tone === OVBadge.Neutral ? Theme.ovInk : chip.colors.ink
        // A month has far too many of these for a tip of their own each.
        elisionTip: chip
        font.strikeout: chip.isDone
        role: OVText.Caption
        text: chip.title
        Accessible.ignored: true
    }

    HoverHandler {
        id: pointer
    }

    OVLazyLoader {
        active: pointer.hovered && label.truncated
        anchors.fill: parent

        sourceComponent: Item {
            id: tip

            OVToolTip {
                shown: true
                target: tip
                text: chip.title
            }
        }
    }
}
