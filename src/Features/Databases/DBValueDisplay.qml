pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A value at rest: words, badges, a check mark or a bar.
Item {
    id: root

    /// Those of the C++ `RecordCell`, in its order.
    enum Kind { None, Field, Link, Number, Progress, Check, Choice, Choices, Date }

    required property var cell
    readonly property int kind: cell.kind
    readonly property bool isEmpty: cell.shown === ""
    readonly property bool isRich: kind === DBValueDisplay.Check || kind === DBValueDisplay.Progress
                                   || (!isEmpty && (kind === DBValueDisplay.Choice || kind === DBValueDisplay.Choices))

    implicitHeight: Theme.chipHeight

    OVText {
        anchors.fill: parent
        color: root.isEmpty ? Theme.ovInkTertiary
             : root.kind === DBValueDisplay.Link ? Theme.ovLink
             : root.cell.isToday ? Theme.accent : Theme.ovInk
        font.weight: (root.cell.isTitle && !root.isEmpty) || root.cell.isToday ? Font.Medium : Theme.textWeight
        maximumLineCount: 1
        role: OVText.Dense
        text: root.isEmpty ? root.cell.placeholder : root.cell.shown
        visible: !root.isRich
        Accessible.ignored: true
    }

    OVLazyLoader {
        active: root.isRich
        anchors.fill: parent
        sourceComponent: root.kind === DBValueDisplay.Check ? check
                       : root.kind === DBValueDisplay.Progress ? progress : badges
    }

    Component {
        id: check

        Item {
            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: root.cell.isChecked ? Theme.accent : Theme.ovInkTertiary
                filled: root.cell.isChecked
                size: Theme.iconButton
                symbol: root.cell.isChecked ? "checkmark.square" : "square"
            }
        }
    }

    Component {
        id: progress

        Item {
            OVProgressBar {
                anchors.left: parent.left
                anchors.right: number.left
                anchors.rightMargin: Theme.space8
                anchors.verticalCenter: parent.verticalCenter
                value: root.cell.progress
                Accessible.ignored: true
            }

            OVText {
                id: number
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                color: root.isEmpty ? Theme.ovInkTertiary : Theme.ovInk
                horizontalAlignment: Text.AlignRight
                role: OVText.Dense
                text: qsTr("%1 %").arg(root.isEmpty ? "–" : root.cell.shown)
                width: Math.min(Math.max(implicitWidth, Math.round(46 * Theme.fontScale)), parent.width / 2)
                Accessible.ignored: true
            }
        }
    }

    Component {
        id: badges

        Item {
            id: strip

            // What is far beyond the edge of any cell is not made.
            readonly property int most: 24
            readonly property var shown: root.kind === DBValueDisplay.Choice ? [root.cell.shown]
                                                                             : root.cell.chosen.slice(0, most)
            readonly property int rest: root.kind === DBValueDisplay.Choice ? 0 : root.cell.chosen.length - shown.length

            clip: row.implicitWidth > width

            Row {
                id: row
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.space4

                Repeater {
                    model: strip.rest > 0 ? [...strip.shown, qsTr("+%1").arg(strip.rest)] : strip.shown

                    OVBadge {
                        required property string modelData

                        text: modelData
                        tone: root.cell.tone
                        width: Math.min(implicitWidth, root.width)
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
