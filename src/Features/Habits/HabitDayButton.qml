import QtQuick
import Orvel.DesignSystem

/// One day of the week: its letter above the mark that a press flips.
OVPressable {
    id: root

    required property int index
    required property string letter
    required property string name
    required property bool isDone
    required property bool isToday
    required property bool isFuture
    required property color tint
    required property color markColor

    enabled: !isFuture
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    pressedScale: 0.94
    radius: Theme.cornerMark
    tabStop: false
    toolTip: name
    washed: false
    Accessible.name: name

    contentItem: Column {
        spacing: Theme.space4

        OVText {
            anchors.horizontalCenter: parent.horizontalCenter
            color: root.isToday ? Theme.ovInk : Theme.ovInkSecondary
            font.weight: root.isToday ? Font.Bold : Theme.textWeight
            role: OVText.Caption
            text: root.letter
            Accessible.ignored: true
        }

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            border.color: root.isDone || root.isToday ? root.tint
                        : root.hovered && root.enabled ? Theme.ovInkSecondary : Theme.ovBorderStrong
            border.width: root.isToday ? 2 : Theme.lineWidth
            color: root.isDone ? root.tint : Qt.alpha(root.tint, 0)
            height: width
            radius: width / 2
            width: Theme.dayMark

            Behavior on color {
                ColorAnimation { duration: Theme.durationScreen }
            }

            OVCheckMark {
                anchors.fill: parent
                color: root.markColor
                shown: root.isDone
            }
        }
    }
}
