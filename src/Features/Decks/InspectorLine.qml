import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A labelled line of text that is written into the store as it is typed.
Column {
    id: root

    required property string label
    required property string content
    property string placeholder
    readonly property alias input: field

    signal edited(text: string, caret: int)

    spacing: Theme.space4

    OVText {
        Accessible.ignored: true
        color: Theme.ovInkSecondary
        font.weight: Font.Medium
        role: OVText.Dense
        text: root.label
        width: parent.width

        TapHandler {
            onTapped: field.forceActiveFocus(Qt.MouseFocusReason)
        }
    }

    OVTextField {
        id: field
        // A field cuts what is longer, and the next key would write the rest away.
        maximumLength: Math.max(32767, root.content.length + 32767)
        placeholderText: root.placeholder
        storeBacked: true
        text: root.content
        width: parent.width
        Accessible.name: root.label
        onActiveFocusChanged: Orvel.undo.endTyping()
        onRedoRequested: Orvel.undo.redo()
        onTextEdited: root.edited(text, cursorPosition)
        onUndoRequested: Orvel.undo.undo()
    }
}
