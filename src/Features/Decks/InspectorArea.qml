import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A labelled text of several lines that is written into the store as it is typed.
Column {
    id: root

    required property string label
    required property string content
    property string placeholder
    property string hint
    property alias minimumLines: area.minimumLines
    readonly property alias input: area

    signal edited(text: string, caret: int)

    spacing: Theme.space4

    OVText {
        Accessible.ignored: true
        color: Theme.ovInkSecondary
        font.weight: Font.Medium
        role: OVText.Dense
        text: root.label
        visible: text !== ""
        width: parent.width

        TapHandler {
            onTapped: area.forceActiveFocus(Qt.MouseFocusReason)
        }
    }

    OVTextArea {
        id: area
        minimumLines: 4
        placeholderText: root.placeholder
        storeBacked: true
        width: parent.width
        Accessible.name: root.label || root.placeholder
        onActiveFocusChanged: Orvel.undo.endTyping()
        onRedoRequested: Orvel.undo.redo()
        onUndoRequested: Orvel.undo.undo()

        FieldText {
            composing: area.input.inputMethodComposing
            document: area.input.textDocument
            text: root.content
            onEdited: text => root.edited(text, area.input.cursorPosition)
        }
    }

    OVText {
        Accessible.ignored: true
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: root.hint
        visible: text !== ""
        width: parent.width
        wrapMode: Text.Wrap
    }
}
