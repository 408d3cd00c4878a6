import QtQuick
import Orvel.Decks
import Orvel.DesignSystem
import Orvel.Session

/// Takes the keys for the field that is edited on the canvas. It draws nothing itself: the canvas draws its text where
/// the slide has it, so lines are the canvas's and not those of this item.
TextEdit {
    id: input

    required property SlideEditorCanvas canvas
    required property DeckEditorViewModel editor
    /// Opens the menu of the text.
    required property OVContextMenuArea contextMenu
    /// Where the caret wants to be across lines of different lengths; NaN for where it is.
    property real goalX: NaN

    /// The caret leaves the field by an arrow key or Tab.
    signal departed(forward: bool, byTab: bool, x: real)
    signal finished()
    /// Another slide is wanted.
    signal paged(step: int)

    /// Puts the caret there.
    function place(position: int, selecting: bool) {
        if (selecting)
            moveCursorSelection(Math.max(0, Math.min(position, length)))
        else
            cursorPosition = Math.max(0, Math.min(position, length))
    }

    function moveLine(step: int, selecting: bool) {
        const x = isNaN(goalX) ? canvas.caretRect.x : goalX
        const position = canvas.positionInLine(cursorPosition, step, x)
        if (position >= 0)
            place(position, selecting)
        else if (selecting)
            place(step < 0 ? 0 : length, true)
        else
            departed(step > 0, false, x)
        goalX = x
    }

    function handle(event: KeyEvent): bool {
        const shift = (event.modifiers & Qt.ShiftModifier) !== 0
        const control = (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) !== 0
        switch (event.key) {
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            if (control)
                return false
            departed(event.key === Qt.Key_Tab && !shift, true, 0)
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (canvas.isMultiLine(canvas.field))
                return false
            departed(true, false, 0)
            return true
        case Qt.Key_Escape:
            finished()
            return true
        }
        if (control)
            return false
        switch (event.key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
            moveLine(event.key === Qt.Key_Up ? -1 : 1, shift)
            return true
        case Qt.Key_Home:
            place(canvas.lineStart(cursorPosition), shift)
            return true
        case Qt.Key_End:
            place(canvas.lineEnd(cursorPosition), shift)
            return true
        case Qt.Key_Left:
        case Qt.Key_Right: {
            const forward = event.key === Qt.Key_Right
            if (shift || selectedText !== "" || cursorPosition !== (forward ? length : 0))
                return false
            departed(forward, false, forward ? 0 : canvas.width)
            return true
        }
        case Qt.Key_PageUp:
        case Qt.Key_PageDown:
            paged(event.key === Qt.Key_PageUp ? -1 : 1)
            return true
        }
        return false
    }

    // Where the caret is drawn is where an input method opens its window.
    x: canvas.caretRect.x - cursorRectangle.x
    y: canvas.caretRect.y - cursorRectangle.y
    opacity: 0
    cursorDelegate: null
    font.family: Theme.fontFamily
    font.pixelSize: Math.max(1, Math.round(canvas.caretRect.height * 0.8))
    persistentSelection: contextMenu.openMenu?.visible ?? false
    textFormat: TextEdit.PlainText
    Accessible.name: canvas.promptOf(canvas.field)
    Accessible.role: Accessible.EditableText

    Keys.onPressed: event => {
        const isVertical = event.key === Qt.Key_Up || event.key === Qt.Key_Down
        if (!isVertical)
            goalX = NaN
        if (undoKeys.handle(event))
            return
        event.accepted = !inputMethodComposing && handle(event)
        if (!event.accepted)
            contextMenu.handleKey(event)
    }

    FieldText {
        id: content
        composing: input.inputMethodComposing
        document: input.textDocument
        text: input.canvas.storedText
        onEdited: text => content.setText(input.editor.setText(input.canvas.field, text, input.cursorPosition))
    }

    OVUndoKeys {
        id: undoKeys
        onRedoRequested: Orvel.undo.redo()
        onUndoRequested: Orvel.undo.undo()
    }
}
