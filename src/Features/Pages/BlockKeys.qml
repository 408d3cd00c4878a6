import QtQml
import QtQuick
import Orvel.Pages

/// What keys mean in a block, before its fields get them.
QtObject {
    id: root

    required property PageEditorViewModel editor
    required property BlockCaret caret
    required property var blockID
    required property BlockBody part

    /// Keys leave the block upwards (-1) or downwards (1).
    signal departed(direction: int)
    signal tabbed(forward: bool)
    /// Goes to the first or the last block, as the key says.
    signal jumped(key: int)
    /// Goes on by the height of the view, upwards (-1) or downwards (1).
    signal pageTurned(direction: int)
    signal menuRequested()

    function handle(event: KeyEvent) {
        const control = (event.modifiers & Qt.ControlModifier) !== 0
        const shift = (event.modifiers & Qt.ShiftModifier) !== 0
        if (![Qt.Key_Up, Qt.Key_Down, Qt.Key_PageUp, Qt.Key_PageDown].includes(event.key))
            caret.column = -1
        caret.typing = true
        event.accepted = !(event.modifiers & (Qt.AltModifier | Qt.MetaModifier))
                && (event.matches(StandardKey.Paste) ? paste() : actOnBlock(event.key, control, shift)
                    || (!part.hasOwnKeys && actOnText(event.key, control, shift)))
    }

    function tab(forward: bool) {
        const stops = part.stops()
        const next = stops.findIndex(stop => stop.activeFocus) + (forward ? 1 : -1)
        if (next >= 0 && next < stops.length)
            stops[next].forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        else
            tabbed(forward)
    }

    /// Takes a text that is too long for the field to paste it.
    function paste(): bool {
        const field = part.input
        return field?.activeFocus === true && editor.pasteLong(blockID, field.selectionStart, field.selectionEnd)
    }

    /// Does what a key means for any block; false for any other.
    function actOnBlock(key: int, control: bool, shift: bool): bool {
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
            if (control && shift)
                editor.moveBlock(blockID, key === Qt.Key_Up ? -1 : 1)
            return control && shift
        case Qt.Key_PageUp:
        case Qt.Key_PageDown: {
            const direction = key === Qt.Key_PageUp ? -1 : 1
            if (control || shift || !part.leavesByPage(direction))
                return false
            pageTurned(direction)
            return true
        }
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            if (control)
                tab(!shift)
            return control
        case Qt.Key_Menu:
            menuRequested()
            return true
        case Qt.Key_F10:
            if (shift)
                menuRequested()
            return shift
        }
        return false
    }

    /// Does what a key means where a line of text is written; false for any other.
    function actOnText(key: int, control: bool, shift: bool): bool {
        if (control) {
            const isEnd = key === Qt.Key_Home || key === Qt.Key_End
            if (isEnd && !shift)
                jumped(key)
            return isEnd && !shift
        }
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down: {
            const direction = key === Qt.Key_Up ? -1 : 1
            if (shift || !part.leaves(direction))
                return false
            departed(direction)
            return true
        }
        case Qt.Key_Tab:
            tab(!shift)
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
            editor.insertBlock(blockID)
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
