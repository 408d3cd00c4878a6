import QtQuick
import Orvel.Pages

/// A list of blocks in which keys select blocks beyond the text that they began in.
BlockFocus {
    id: root

    readonly property PageSelection selection: editor.selection
    /// The text that is selected in the block that has the focus.
    readonly property string selectedText: (currentItem as BlockRow)?.part?.input?.selectedText ?? ""

    /// Goes on with the selection beyond the text that the focus is in; false if the key stays in the text.
    function selectByKey(row: var, key: int, control: bool, shift: bool): bool {
        const input = row.part.input
        if (control && !shift && key === Qt.Key_A) {
            const isWhole = !input || input.selectionEnd - input.selectionStart === input.length
            if (isWhole && (!input || input.activeFocus))
                selection.selectAll()
            return selection.active
        }
        if (!shift || (input && !input.activeFocus))
            return false
        const direction = [Qt.Key_Up, Qt.Key_Left, Qt.Key_Home].includes(key) ? -1 : 1
        if (!isBeyond(row, key, control, direction))
            return false
        selection.select(row.blockID, row.blockID)
        if (key === Qt.Key_Home || key === Qt.Key_End)
            selection.extend(direction * count)
        else
            selection.extend(direction)
        return true
    }

    /// Whether this key with Shift has nothing more to select in the text.
    function isBeyond(row: var, key: int, control: bool, direction: int): bool {
        const input = row.part.input
        const isLeftwards = input?.effectiveHorizontalAlignment === TextEdit.AlignRight
        const edge = (direction < 0) !== (isLeftwards && [Qt.Key_Left, Qt.Key_Right].includes(key)) ? 0 : input?.length ?? 0
        const isAtEdge = !input || input.cursorPosition === edge
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
            return !control && row.part.leaves(direction) && (isAtEdge || !row.part.hasOwnKeys)
        case Qt.Key_Left:
        case Qt.Key_Right:
            return isAtEdge
        case Qt.Key_Home:
        case Qt.Key_End:
            return control && (isAtEdge || !row.part.hasOwnKeys) && (direction < 0 ? row.index > 0 : row.index < count - 1)
        }
        return false
    }

    /// A click with Shift selects up to this row, from the block that has the focus; false if it stays in that block.
    function selectTo(row: var): bool {
        const from = currentItem as BlockRow
        if (!selection.active && (!from?.activeFocus || from === row))
            return false
        if (!selection.active)
            selection.select(from.blockID, from.blockID)
        selection.extendTo(row.blockID)
        return true
    }

    /// Puts the caret back into a text: before the selected blocks (-1), after them (1) or where it was (0).
    function leaveSelection(direction: int) {
        const index = direction < 0 ? selection.first : direction > 0 ? selection.last : selection.focusRow
        if (direction > 0)
            show(index).part.focusAtEnd()
        else
            focusBlock(index, direction < 0 ? 0 : -1)
    }

    /// Brings the end of the selection that moves into view.
    function revealSelection() {
        // The row must not become the current one, which would take the focus.
        positionViewAtIndex(selection.focusRow, ListView.Contain)
    }
}
