import QtQuick
import Orvel.Pages

/// Edits the text of a block for the Edit menu, as the keys do.
QtObject {
    required property PageEditorViewModel editor
    required property var blockID
    required property TextEdit input
    readonly property string selectedText: input.selectedText
    readonly property bool canPaste: input.canPaste
    readonly property int length: input.length

    function cut() {
        input.cut()
    }

    function copy() {
        input.copy()
    }

    function paste() {
        if (!editor.paste(blockID, input.selectionStart, input.selectionEnd, false))
            input.paste()
    }

    function selectAll() {
        input.selectAll()
    }
}
