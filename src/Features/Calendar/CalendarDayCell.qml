pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem

/// One day in a grid of days: its number, today's filled, the selected one outlined, and below it what stands on it.
Item {
    id: cell

    required property int index
    required property string number
    required property string label
    required property bool isInPeriod
    required property bool isToday
    required property bool isSelected
    required property string moreText
    required property QtObject chips
    /// Whether the keyboard is here.
    property bool current: false

    signal tapped()
    signal doubleTapped()
    signal moreTapped()

    Accessible.name: label
    Accessible.role: Accessible.Button
    Accessible.selected: isSelected
    Accessible.onPressAction: tapped()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        border.color: cell.current ? Theme.focusRing : Theme.accent
        border.width: cell.current ? 2 : cell.isSelected ? Theme.lineWidth : 0
        color: hover.hovered && !cell.isSelected ? Theme.ovHover : "transparent"
        radius: Theme.cornerField
    }

    Rectangle {
        id: mark
        color: cell.isToday ? Theme.accent : "transparent"
        height: Math.ceil(numberText.implicitHeight) + 2
        radius: height / 2
        width: Math.max(height, numberText.width + Theme.space8)
        x: Theme.space4 + 2
        y: Theme.space4 + 1

        OVText {
            id: numberText
            anchors.centerIn: parent
            color: cell.isToday ? Theme.onAccent : cell.isInPeriod ? Theme.ovInk : Theme.ovInkTertiary
            font.weight: cell.isToday || cell.isSelected ? Font.DemiBold : Font.Normal
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Math.round(0.75 * Theme.sizeCaption)
            role: OVText.Caption
            text: cell.number
            width: Math.min(Math.ceil(implicitWidth), cell.width - 2 * mark.x - (cell.isToday ? Theme.space8 : 0))
            Accessible.ignored: true
        }
    }

    Column {
        id: items
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.space4 + 2
        opacity: cell.isInPeriod ? 1 : 0.6
        spacing: 2
        y: mark.y + mark.height + 2

        Repeater {
            model: cell.chips

            CalendarChip {
                width: items.width
            }
        }
    }

    OVLazyLoader {
        id: more
        active: cell.moreText !== ""
        anchors.left: items.left
        anchors.right: items.right
        anchors.top: items.bottom
        anchors.topMargin: 1

        sourceComponent: OVText {
            color: moreHover.hovered ? Theme.ovInk : Theme.ovInkSecondary
            fontSizeMode: Text.HorizontalFit
            leftPadding: Theme.space4 + 1
            minimumPixelSize: Math.round(0.75 * Theme.sizeCaption)
            role: OVText.Caption
            text: cell.moreText
            Accessible.ignored: true

            HoverHandler {
                id: moreHover
                cursorShape: Qt.PointingHandCursor
            }
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: eventPoint => {
            if (more.active && more.contains(cell.mapToItem(more, eventPoint.position)))
                cell.moreTapped()
            else
                cell.tapped()
        }
        onDoubleTapped: cell.doubleTapped()
    }
}
