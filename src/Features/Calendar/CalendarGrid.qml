pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Calendar
import Orvel.DesignSystem

/// Days in weeks, one stop for Tab, as high as the place allows. Its model has a row for each day, with what
/// `CalendarDayCell` requires; the screen decides where the keys lead.
T.Control {
    id: grid

    required property QtObject model
    /// Over the columns; none for cells that tell their weekday themselves.
    property list<string> weekdays
    property int selectedIndex: -1
    property string selectedText
    /// Chips that a cell has room for.
    property int chipCount: 3
    property real viewHeight: 0

    readonly property int rowCount: Math.ceil(cells.count / 7)
    /// Room for the number, the chips and a word on those that have none.
    readonly property real minimumCellHeight: (chipCount + 2) * (measure.height + 3) + Theme.space8 - 1
    readonly property real cellHeight: rowCount === 0 ? 0
        : Math.floor(Math.max(minimumCellHeight, (viewHeight - heads.height - 2) / rowCount))

    /// The keys lead so many days on.
    signal moved(days: int)
    signal tapped(index: int)
    /// Something is to be added on the selected day.
    signal addRequested()
    /// All items of the selected day are to be shown.
    signal openRequested()

    /// The cell of the selected day, or null.
    function selectedItem(): Item {
        return selectedIndex < 0 ? null : cells.itemAt(selectedIndex)
    }

    focusPolicy: Qt.TabFocus
    implicitHeight: heads.height + rowCount * cellHeight + 2
    padding: 1
    OVAccessible.role: Accessible.Table
    Accessible.focusable: true
    Accessible.name: selectedText

    Keys.onPressed: event => {
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier | Qt.ShiftModifier))
            return
        focusReason = Qt.TabFocusReason
        event.accepted = true
        switch (event.key) {
        case Qt.Key_Left: return moved(-1)
        case Qt.Key_Right: return moved(1)
        case Qt.Key_Up: return moved(-7)
        case Qt.Key_Down: return moved(7)
        case Qt.Key_Return:
        case Qt.Key_Enter: return addRequested()
        case Qt.Key_Space: return openRequested()
        default: event.accepted = false
        }
    }

    background: Rectangle {
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        radius: Theme.cornerCard
    }

    contentItem: Item {
        OVText {
            id: measure
            role: OVText.Caption
            text: "0"
            visible: false
        }

        Row {
            id: heads
            height: grid.weekdays.length > 0 ? measure.height + Theme.space12 : 0

            Repeater {
                model: grid.weekdays

                OVText {
                    required property string modelData

                    color: Theme.ovInkSecondary
                    height: heads.height
                    leftPadding: Theme.space12
                    role: OVText.Caption
                    text: modelData
                    width: body.width / 7
                    Accessible.ignored: true
                }
            }
        }

        Item {
            id: body
            height: grid.rowCount * grid.cellHeight
            width: parent.width
            y: heads.height

            Repeater {
                model: grid.rowCount

                OVDivider {
                    required property int index

                    visible: index > 0 || heads.height > 0
                    width: body.width
                    y: index * grid.cellHeight
                }
            }

            Repeater {
                model: 6

                OVDivider {
                    required property int index

                    height: body.height
                    vertical: true
                    x: Math.round((index + 1) * body.width / 7)
                }
            }

            Repeater {
                id: cells
                model: grid.model

                CalendarDayCell {
                    readonly property int column: index % 7

                    current: index === grid.selectedIndex && grid.visualFocus
                    height: grid.cellHeight
                    width: Math.round((column + 1) * body.width / 7) - x
                    x: Math.round(column * body.width / 7)
                    y: Math.floor(index / 7) * grid.cellHeight
                    onDoubleTapped: grid.addRequested()
                    onMoreTapped: {
                        grid.tapped(index)
                        grid.openRequested()
                    }
                    onTapped: {
                        grid.forceActiveFocus(Qt.MouseFocusReason)
                        grid.tapped(index)
                    }
                }
            }
        }
    }
}
