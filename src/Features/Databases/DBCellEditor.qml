import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// The field that a value becomes while it is edited. Each change is told at once.
OVTextField {
    id: field

    required property var cell
    /// What the cell has taken of the text that was written last.
    property string taken

    // A field cuts what is longer, and the next key would write the rest away.
    maximumLength: Math.max(32767, cell.text.length + 32767)

    signal written(text: string)
    /// The user goes on with this key.
    signal finished(key: int)
    signal canceled()

    function begin(typed: string) {
        text = typed === "" ? cell.text : typed
        cursorPosition = length
        forceActiveFocus(Qt.OtherFocusReason)
        if (typed !== "")
            write()
    }

    function write() {
        written(text)
        show(taken)
    }

    function show(value: string) {
        if (text === value || inputMethodComposing)
            return
        const caret = cursorPosition - (text.length - value.length)
        text = value
        cursorPosition = Math.max(0, Math.min(caret, length))
    }

    function leave(event: KeyEvent) {
        event.accepted = !inputMethodComposing
        if (event.accepted)
            finished(event.key)
    }

    color: cell.kind === DBValueDisplay.Link ? Theme.ovLink : Theme.ovInk
    font.pixelSize: Theme.sizeDense
    font.weight: cell.isTitle ? Font.Medium : Theme.textWeight
    placeholderText: cell.placeholder
    plain: true
    storeBacked: true
    Accessible.name: cell.name

    Keys.onBacktabPressed: event => leave(event)
    Keys.onDownPressed: event => leave(event)
    Keys.onEnterPressed: event => leave(event)
    Keys.onEscapePressed: event => {
        event.accepted = !inputMethodComposing
        if (event.accepted)
            canceled()
    }
    Keys.onReturnPressed: event => leave(event)
    Keys.onTabPressed: event => leave(event)
    Keys.onUpPressed: event => leave(event)
    onActiveFocusChanged: {
        // A menu of the field itself, or another window, does not end the editing.
        if (!activeFocus && Window.active && Window.activeFocusItem !== null && focusReason !== Qt.PopupFocusReason)
            finished(0)
    }
    onCellChanged: {
        // What undo and others write has to show, with the caret in place.
        if (activeFocus)
            show(cell.text)
    }
    onRedoRequested: Orvel.undo.redo()
    onTextEdited: write()
    onUndoRequested: Orvel.undo.undo()
}
