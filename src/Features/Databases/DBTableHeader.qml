pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The row of column heads, one stop for Tab; Left and Right go from head to head.
FocusScope {
    id: root

    required property RecordsViewModel records
    required property DBTableColumns columns
    property int currentColumn: 0

    signal columnWanted(column: int)
    /// The user goes on to the records.
    signal leaveDown()

    function headAt(column: int): DBHeaderCell {
        if (column === 0)
            return title
        for (let slot = 0; slot < heads.count; ++slot) {
            const head = heads.itemAt(slot) as DBHeaderCell
            if (head.column === column)
                return head
        }
        return null
    }

    function go(step: int) {
        const next = Math.max(0, Math.min(records.columnCount - 1, currentColumn + step))
        columnWanted(next)
        currentColumn = next
        headAt(next)?.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Theme.rowHeight + Theme.space4

    Keys.onDownPressed: leaveDown()
    Keys.onLeftPressed: go(-1)
    Keys.onRightPressed: go(1)

    component Head: DBHeaderCell {
        records: root.records
        tabStop: root.currentColumn === column
        height: root.height
        onActiveFocusChanged: {
            if (activeFocus)
                root.currentColumn = column
        }
        onMoved: places => {
            root.currentColumn = column
            root.go(places)
        }
    }

    Item {
        x: -root.columns.offset

        Repeater {
            id: heads
            model: root.columns.slots

            Head {
                required property int index

                column: root.columns.columnAt(index)
                visible: column < root.records.columnCount
                width: root.columns.width
                x: root.columns.x(column)
            }
        }
    }

    Rectangle {
        color: Theme.ovSurface
        height: parent.height - 1
        visible: root.columns.pin > 0
        width: title.width
        y: 1
    }

    Head {
        id: title
        column: 0
        visible: root.records.columnCount > 0
        width: root.columns.titleWidth
        x: root.columns.pin - root.columns.offset
    }

    Rectangle {
        anchors.bottom: parent.bottom
        color: Theme.ovBorder
        height: Theme.lineWidth
        width: parent.width
    }
}
