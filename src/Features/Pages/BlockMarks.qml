import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What the search of the page has found in the text of a block.
OVFindMarks {
    id: root

    required property PageEditorViewModel editor
    required property var blockID
    required property string storedText

    function found(revision: int, text: string): var {
        return editor.finder.marksIn(blockID, editor.partBegin(blockID))
    }

    Binding on marks {
        value: root.found(root.editor.finder?.revision ?? 0, root.storedText)
        when: root.editor.finder !== null
    }
}
