pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A month to choose a day from. Arrow keys move by days and weeks, Page Up and Down by months, Home and End
/// to the ends of the week; Return chooses. It never changes `value` itself.
T.Control {
    id: picker

    /// The chosen moment; an invalid date while nothing is chosen.
    property date value
    /// The present moment, which marks today.
    required property date now
    /// Whether a button below the month goes to today and chooses it.
    property bool showsToday: false
    /// Whether a button below the month takes the choice away.
    property bool clearable: false
    readonly property int cellSize: Theme.rowHeight

    /// Whether the keyboard's day shows its ring although the keyboard has not been used here yet.
    property bool ringVisible: false

    /// A day was chosen: that day at the value's time of day.
    signal chosen(moment: date)
    signal cleared()

    /// Makes the days what a popup around the picker focuses.
    function focusFirst() {
        days.focus = true
    }

    function choose() {
        picker.chosen(month.momentAtCursor())
    }

    implicitWidth: 7 * cellSize + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    MonthGrid {
        id: month
        value: picker.value
        now: picker.now
    }

    contentItem: Column {
        spacing: Theme.space4

        Item {
            width: parent.width
            height: Theme.iconButtonSize

            OVText {
                anchors.left: parent.left
                anchors.leftMargin: Theme.space8
                anchors.right: previous.left
                anchors.verticalCenter: parent.verticalCenter
                text: month.title
                font.weight: Font.DemiBold
            }

            OVIconButton {
                id: previous
                anchors.right: next.left
                symbol: "chevron.left"
                text: qsTr("Previous month")
                onClicked: month.moveMonths(-1)
            }

            OVIconButton {
                id: next
                anchors.right: parent.right
                symbol: "chevron.right"
                text: qsTr("Next month")
                onClicked: month.moveMonths(1)
            }
        }

        Row {
            Repeater {
                model: month.weekdays

                OVText {
                    required property string modelData

                    width: picker.cellSize
                    text: modelData
                    horizontalAlignment: Text.AlignHCenter
                    role: OVText.Caption
                    color: Theme.ovInkTertiary
                }
            }
        }

        T.Control {
            id: days
            objectName: "days"
            implicitWidth: contentItem.implicitWidth
            implicitHeight: contentItem.implicitHeight
            focus: true
            focusPolicy: Qt.TabFocus

            OVAccessible.role: Accessible.Table
            Accessible.name: month.cursorText
            Accessible.focusable: true

            Keys.onPressed: event => {
                focusReason = Qt.TabFocusReason
                event.accepted = true
                switch (event.key) {
                case Qt.Key_Left: return month.moveDays(-1)
                case Qt.Key_Right: return month.moveDays(1)
                case Qt.Key_Up: return month.moveDays(-7)
                case Qt.Key_Down: return month.moveDays(7)
                case Qt.Key_PageUp: return month.moveMonths(-1)
                case Qt.Key_PageDown: return month.moveMonths(1)
                case Qt.Key_Home: return month.moveToWeekStart()
                case Qt.Key_End: return month.moveToWeekEnd()
                case Qt.Key_Return:
                case Qt.Key_Enter:
                case Qt.Key_Space: return picker.choose()
                default: event.accepted = false
                }
            }

            contentItem: Grid {
                columns: 7

                Repeater {
                    model: month

                    OVDayCell {
                        width: picker.cellSize
                        height: picker.cellSize
                        current: index === month.cursorIndex && days.activeFocus
                                 && (days.visualFocus || picker.ringVisible)
                        onTapped: {
                            days.forceActiveFocus(Qt.MouseFocusReason)
                            month.moveToCell(index)
                            picker.choose()
                        }
                    }
                }
            }
        }

        Row {
            visible: picker.showsToday || picker.clearable
            spacing: Theme.space8

            OVSecondaryButton {
                visible: picker.showsToday
                text: qsTr("Today")
                onClicked: {
                    month.moveToToday()
                    picker.choose()
                }
            }

            OVSecondaryButton {
                visible: picker.clearable
                text: qsTr("Clear")
                onClicked: picker.cleared()
            }
        }
    }

    OVWheelSteps {
        onStepped: steps => month.moveMonths(-steps)
    }
}
