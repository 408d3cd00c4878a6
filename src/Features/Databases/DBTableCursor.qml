import QtQuick
import Orvel.Databases

/// The cursor in the cells of a table: arrow keys, Home and End, Page Up and Down, with Control to the ends. After an
/// edit Tab goes on to the right, and Return down to where that began.
QtObject {
    id: root

    required property ListView list
    required property DBTableColumns columns
    required property RecordKeys keys
    readonly property int rowCount: list.count
    readonly property int columnCount: columns.records.columnCount
    readonly property string description: rowCount > 0 ? columns.records.describe(keys.row, keys.column) : ""

    /// The user goes on below the last record.
    signal leaveDown()

    function row(): DBTableRow {
        return list.currentItem as DBTableRow
    }

    function cell(): DBValueCell {
        return row()?.cellAt(keys.column) ?? null
    }

    function isEditing(): bool {
        return cell()?.editing ?? false
    }

    function show(row: int, column: int) {
        keys.column = Math.max(0, Math.min(columnCount - 1, column))
        list.currentIndex = Math.min(list.count - 1, Math.max(0, row))
        list.positionViewAtIndex(keys.row, ListView.Contain)
        list.contentX = columns.offsetFor(keys.column)
    }

    /// Moves the cursor by the pointer.
    function point(row: int, column: int) {
        keys.fillColumn = -1
        show(row, column)
        list.forceActiveFocus(Qt.MouseFocusReason)
        keys.ringShown = false
    }

    /// The editing of a cell has ended with this key; 0 for none.
    function editingFinished(key: int) {
        if (key !== 0) {
            list.forceActiveFocus(Qt.OtherFocusReason)
            keys.ringShown = true
        }
        goOn(key)
    }

    function move(rows: int, columns: int): bool {
        keys.ringShown = true
        keys.fillColumn = -1
        show(keys.row + rows, keys.column + columns)
        if (columns < 0 && keys.column === 0)
            list.contentX = 0
        return true
    }

    /// Goes on after an edit that this key has ended.
    function goOn(key: int) {
        switch (key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
            return show(keys.row + 1, keys.fillColumn < 0 ? keys.column : keys.fillColumn)
        case Qt.Key_Down:
            return show(keys.row + 1, keys.column)
        case Qt.Key_Up:
            return show(keys.row - 1, keys.column)
        case Qt.Key_Tab:
            fill(1)
            return
        case Qt.Key_Backtab:
            fill(-1)
            return
        }
    }

    /// Goes to the next cell in the order of reading; false at the ends.
    function fill(step: int): bool {
        const next = keys.row * columnCount + keys.column + step
        if (next < 0 || next >= rowCount * columnCount)
            return false
        if (keys.fillColumn < 0)
            keys.fillColumn = keys.column
        show(Math.floor(next / columnCount), next % columnCount)
        return true
    }

    function press(event: KeyEvent): bool {
        const toEnds = event.modifiers & Qt.ControlModifier
        const page = Math.max(1, Math.floor(list.height / Math.max(1, row()?.height ?? 1)) - 1)
        switch (event.key) {
        case Qt.Key_Left: return move(0, toEnds ? -columnCount : -1)
        case Qt.Key_Right: return move(0, toEnds ? columnCount : 1)
        case Qt.Key_Up: return move(toEnds ? -rowCount : -1, 0)
        case Qt.Key_Down:
            if (keys.row === rowCount - 1)
                leaveDown()
            return move(toEnds ? rowCount : 1, 0)
        case Qt.Key_PageUp: return move(-page, 0)
        case Qt.Key_PageDown: return move(page, 0)
        case Qt.Key_Home: return move(toEnds ? -rowCount : 0, -columnCount)
        case Qt.Key_End: return move(toEnds ? rowCount : 0, columnCount)
        case Qt.Key_Tab: return keys.fillColumn >= 0 && fill(1)
        case Qt.Key_Backtab: return keys.fillColumn >= 0 && fill(-1)
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (keys.fillColumn < 0)
                return false
            keys.ringShown = true
            show(keys.row + 1, keys.fillColumn)
            keys.fillColumn = -1
            return true
        case Qt.Key_Menu:
            return row()?.openMenu() ?? false
        }
        return event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier ? row()?.openMenu() ?? false : false
    }
}
