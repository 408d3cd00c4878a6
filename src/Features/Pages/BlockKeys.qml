import QtQuick
import Orvel.Pages
import Orvel.Session

/// A list of blocks in which keys do what they mean for a block, before its fields get them.
BlockSelecting {
    id: root

    signal menuRequested(row: var)

    function handleKey(row: var, event: KeyEvent) {
        const control = (event.modifiers & Qt.ControlModifier) !== 0
        const shift = (event.modifiers & Qt.ShiftModifier) !== 0
        if (![Qt.Key_Up, Qt.Key_Down, Qt.Key_PageUp, Qt.Key_PageDown].includes(event.key))
            caret.column = -1
        caret.typing = true
        if (event.modifiers & (Qt.AltModifier | Qt.MetaModifier))
            event.accepted = false
        else if (event.matches(StandardKey.Paste))
            event.accepted = paste(row, false)
        else if (event.key === Qt.Key_V && control && shift)
            event.accepted = paste(row, true)
        else
            event.accepted = selectByKey(row, event.key, control, shift)
                    || actOnBlock(row, event.key, control, shift)
                    || (!row.part.hasOwnKeys && actOnText(row, event.key, control, shift))
    }

    /// Goes on to the next part of the block, or to the block after it.
    function tabFrom(row: var, forward: bool) {
        const stops = row.part.stops()
        const next = stops.findIndex(stop => stop.activeFocus) + (forward ? 1 : -1)
        if (next >= 0 && next < stops.length)
            stops[next].forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        else
            tab(row.index, forward)
    }

    /// Pastes into the text; false for what the field does by itself.
    /// @param plain whether the clipboard is taken as lines of text
    function paste(row: var, plain: bool): bool {
        const field = row.part.input
        if (field && !field.activeFocus)
            return false
        if (editor.paste(row.blockID, field?.selectionStart ?? 0, field?.selectionEnd ?? 0, plain))
            return true
        // The field knows no key for this.
        if (plain)
            field?.paste()
        return plain
    }

    /// Does what a key means for any block; false for any other.
    function actOnBlock(row: var, key: int, control: bool, shift: bool): bool {
        const direction = key === Qt.Key_Up || key === Qt.Key_PageUp ? -1 : 1
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
            if (control && shift)
                editor.moveBlock(row.blockID, direction)
            return control && shift
        case Qt.Key_Y:
        case Qt.Key_Z:
            if (!control || (key === Qt.Key_Y && shift))
                return false
            if (key === Qt.Key_Y || shift)
                Orvel.undo.redo()
            else
                Orvel.undo.undo()
            return true
        case Qt.Key_PageUp:
        case Qt.Key_PageDown:
            if (control || shift || !row.part.leavesByPage(direction))
                return false
            turnPage(direction)
            return true
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            if (control)
                tabFrom(row, !shift)
            return control
        case Qt.Key_Menu:
            menuRequested(row)
            return true
        case Qt.Key_F10:
            if (shift)
                menuRequested(row)
            return shift
        }
        return false
    }

    /// Does what a key means where a line of text is written; false for any other.
    function actOnText(row: var, key: int, control: bool, shift: bool): bool {
        if (control) {
            const isEnd = key === Qt.Key_Home || key === Qt.Key_End
            if (isEnd && !shift)
                jump(key)
            return isEnd && !shift
        }
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down: {
            const direction = key === Qt.Key_Up ? -1 : 1
            if (shift || !row.part.leaves(direction))
                return false
            step(row.index, direction)
            return true
        }
        case Qt.Key_Tab:
            tabFrom(row, !shift)
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
            editor.insertBlock(row.blockID)
            return true
        case Qt.Key_Escape:
            if (editor.slashTypes.length === 0)
                return false
            editor.dismissSlash()
            return true
        }
        return false
    }
}
