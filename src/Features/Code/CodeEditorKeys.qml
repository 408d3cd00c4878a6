import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Session

/// The keys that a code editor takes before its text does, and what keeps the caret in view.
QtObject {
    id: root

    required property TextEdit input
    required property CodeEditorDocument document
    required property Flickable flickable
    required property OVContextMenuArea contextMenu
    property bool isHeld: false

    signal leftUp()
    signal leftDown()

    /// Scrolls the caret into view.
    function reveal() {
        if (isHeld || !input.activeFocus || flickable.height <= 0)
            return
        showPlace(input.positionToRectangle(input.cursorPosition))
    }

    /// Scrolls a place of the text into view.
    function showPlace(place: rect) {
        flickable.contentY = within(flickable.contentY, place.y,
                                    place.y + place.height + 2 * input.y - flickable.height,
                                    flickable.contentHeight - flickable.height)
        flickable.contentX = within(flickable.contentX, place.x,
                                    place.x + place.width + 2 * Theme.space12 - flickable.width,
                                    flickable.contentWidth - flickable.width)
    }

    function within(present: real, most: real, least: real, end: real): real {
        return Math.max(0, Math.min(end, Math.max(least, Math.min(most, present))))
    }

    function moveByPage(direction: int, selecting: bool) {
        const caret = input.cursorRectangle
        const distance = direction * Math.max(caret.height, flickable.height - 2 * caret.height)
        const position = input.positionAt(caret.x, caret.y + caret.height / 2 + distance)
        flickable.contentY = within(flickable.contentY + distance, Infinity, 0, flickable.contentHeight - flickable.height)
        if (selecting)
            input.moveCursorSelection(position)
        else
            input.cursorPosition = position
    }

    function openMenu() {
        const caret = input.cursorRectangle
        const place = input.mapToItem(contextMenu, caret.x, caret.y + caret.height)
        contextMenu.openAt(within(place.x, contextMenu.width, 0, contextMenu.width),
                           within(place.y, contextMenu.height, 0, contextMenu.height))
    }

    function moveOut(event: KeyEvent) {
        const caret = input.cursorRectangle
        if (event.key === Qt.Key_Up && caret.y <= input.positionToRectangle(0).y)
            leftUp()
        else if (event.key === Qt.Key_Down && caret.y >= input.positionToRectangle(input.length).y)
            leftDown()
    }

    function handle(event: KeyEvent) {
        if (input.readOnly)
            return
        const modifiers = event.modifiers & ~(Qt.KeypadModifier | Qt.GroupSwitchModifier)
        const isShifted = modifiers === Qt.ShiftModifier
        if (event.matches(StandardKey.Undo)) {
            Orvel.undo.undo()
            return event.accepted = true
        }
        if (event.matches(StandardKey.Redo) || (event.key === Qt.Key_Y && modifiers === Qt.ControlModifier)) {
            Orvel.undo.redo()
            return event.accepted = true
        }
        const isMenuKey = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && isShifted)
        if (isMenuKey) {
            reveal()
            openMenu()
        } else if (event.matches(StandardKey.SelectAll)) {
            isHeld = true
            input.selectAll()
            isHeld = false
        } else if (event.key === Qt.Key_Tab && !modifiers) {
            document.indent(input.selectionStart, input.selectionEnd)
        } else if (event.key === Qt.Key_Backtab && isShifted) {
            document.outdent(input.selectionStart, input.selectionEnd)
        } else if ((event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab) && modifiers & Qt.ControlModifier) {
            const isForward = event.key === Qt.Key_Tab && !(modifiers & Qt.ShiftModifier)
            input.nextItemInFocusChain(isForward).forceActiveFocus(isForward ? Qt.TabFocusReason
                                                                            : Qt.BacktabFocusReason)
        } else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && (!modifiers || isShifted)) {
            document.breakLine(input.selectionStart, input.selectionEnd)
        } else if (event.key === Qt.Key_Backspace && (!modifiers || isShifted)
                   && input.selectionStart === input.selectionEnd && input.preeditText === ""
                   && document.removeIndent(input.cursorPosition)) {
            reveal()
        } else if ((event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown) && (!modifiers || isShifted)) {
            moveByPage(event.key === Qt.Key_PageUp ? -1 : 1, isShifted)
        } else {
            if (!modifiers)
                moveOut(event)
            event.accepted = false
            return
        }
        event.accepted = true
    }
}
