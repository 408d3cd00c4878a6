pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// A record as a row of the table. Only cells in sight are made.
Item {
    id: row

    required property int index
    required property var recordID
    required property var values
    required property RecordsViewModel records
    required property DBTableColumns columns
    required property RecordKeys keys
    /// Whether the table shows its cursor.
    required property bool cursorShown
    readonly property bool isCurrent: ListView.isCurrentItem && cursorShown
    readonly property bool hovered: pointer.hovered

    /// The pointer pressed a cell.
    signal pointed(column: int)
    /// The editing of a cell has ended with this key; 0 for none.
    signal finished(key: int)

    function cellAt(column: int): DBValueCell {
        if (column === 0)
            return title
        for (let slot = 0; slot < cells.count; ++slot) {
            const cell = cells.itemAt(slot) as DBValueCell
            if (cell.column === column)
                return cell
        }
        return null
    }

    function openMenu(): bool {
        contextMenu.openAt(columns.x(keys.column), height)
        return true
    }

    component Cell: DBValueCell {
        current: row.isCurrent && row.keys.column === column
        height: row.height
        recordID: row.recordID
        records: row.records
        ringShown: row.keys.ringShown
        values: row.values
        onFinished: key => row.finished(key)
        onPointed: row.pointed(column)
    }

    height: Theme.rowHeight + Theme.space8
    width: ListView.view?.contentWidth ?? 0

    ListView.onPooled: {
        title.finish()
        for (let slot = 0; slot < cells.count; ++slot)
            (cells.itemAt(slot) as DBValueCell).finish()
    }

    HoverHandler {
        id: pointer
    }

    Rectangle {
        anchors.bottom: parent.bottom
        color: Theme.ovBorder
        height: Theme.lineWidth
        opacity: 0.6
        width: row.columns.viewportWidth
        x: row.columns.offset
    }

    Repeater {
        id: cells
        model: row.columns.slots

        Cell {
            required property int index

            column: row.columns.columnAt(index)
            visible: column < row.records.columnCount
            width: row.columns.width
            x: row.columns.x(column)
        }
    }

    Rectangle {
        color: Theme.ovSurface
        height: parent.height - 1
        visible: row.columns.pin > 0
        width: row.columns.titleWidth
        x: row.columns.pin

        Rectangle {
            anchors.right: parent.right
            color: Theme.ovBorder
            height: parent.height
            width: Theme.lineWidth
        }
    }

    Cell {
        id: title
        column: 0
        width: row.columns.titleWidth
        x: row.columns.pin
    }

    OVContextMenuArea {
        id: contextMenu
        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        menu: Component {
            RecordMenu { keys: row.keys }
        }
        // qmllint enable unqualified
        onOpenMenuChanged: row.pointed(row.keys.column)
    }

    RecordActionButtons {
        shown: row.hovered || row.isCurrent
        x: row.columns.offset + row.columns.viewportWidth - width - Theme.space8
        y: Math.round((row.height - height) / 2)
        onDeleteRequested: row.records.remove(row.recordID)
        onDuplicateRequested: row.records.duplicate(row.recordID)
    }
}
