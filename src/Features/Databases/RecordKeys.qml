import QtQuick
import Orvel.Databases

/// The keyboard in the cells of records, the same in every layout: one cell has the cursor, and keys edit, empty, copy
/// and fill it. Where the cursor goes is up to the layout.
QtObject {
    id: root

    required property RecordsViewModel records
    /// The cell under the cursor.
    property int row: -1
    property int column: 0
    /// Whether the keyboard moved the cursor, so that its ring shows.
    property bool ringShown: false
    /// The column where Tab began to go from cell to cell; -1 while it does not.
    property int fillColumn: -1
    /// What the Edit menu asks a text field: whether there is something to copy, and room for what is pasted.
    readonly property bool selectedText: row >= 0
    readonly property bool canPaste: row >= 0

    /// The cell under the cursor has to be brought into view and opened.
    signal openRequested(typed: string)
    /// A new record is wanted, beside the one under the cursor.
    signal newRequested()
    /// The record is about to go.
    signal removing()

    function copy() {
        records.copy(records.recordAt(row), column)
    }

    function cut() {
        copy()
        clear()
    }

    function paste() {
        records.paste(records.recordAt(row), column)
    }

    function clear() {
        records.setValue(records.recordAt(row), column, "")
    }

    function duplicate() {
        records.duplicate(records.recordAt(row))
    }

    function remove() {
        removing()
        records.remove(records.recordAt(row))
    }

    /// Does what the key stands for; false for any other key.
    function press(event: KeyEvent): bool {
        const modifiers = event.modifiers & ~(Qt.KeypadModifier | Qt.ShiftModifier)
        if (modifiers === Qt.ControlModifier)
            return pressWithControl(event)
        if (modifiers !== Qt.NoModifier)
            return false
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_F2:
        case Qt.Key_Space:
            openRequested("")
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            clear()
            return true
        }
        const isTyped = event.text !== "" && event.text >= " " && event.key !== Qt.Key_Escape
        if (isTyped)
            openRequested(event.text)
        return isTyped
    }

    function pressWithControl(event: KeyEvent): bool {
        if (event.modifiers & Qt.ShiftModifier)
            return false
        switch (event.key) {
        case Qt.Key_C:
            copy()
            return true
        case Qt.Key_X:
            cut()
            return true
        case Qt.Key_V:
            paste()
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
            newRequested()
            return true
        case Qt.Key_D:
            duplicate()
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            remove()
            return true
        }
        return false
    }
}
