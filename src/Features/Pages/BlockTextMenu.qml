import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The context menu of the text of a block.
OVTextMenu {
    id: root

    readonly property BlockField field: target as BlockField

    function paste() {
        field.editor.paste(field.blockID, field.selectionStart, field.selectionEnd)
    }

    storeBacked: true
    onRedoRequested: Orvel.undo.redo()
    onUndoRequested: Orvel.undo.undo()
}
