pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// The title of a task: a line of text that becomes a field where it stands. Each edit is told at once, so
/// that ending the editing never loses anything.
Item {
    id: root

    required property string title
    required property bool isDone
    property bool editing: false
    readonly property string placeholder: qsTr("Task")

    signal pointed()
    signal edited(title: string)
    /// The user is done with the field.
    signal finished()

    /// @param x where the caret goes; without it, to the end
    function edit(x = width) {
        editing = true
        const field = editor.item as OVTextField
        field.cursorPosition = field.positionAt(x, field.height / 2)
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    onEditingChanged: {
        // Else the empty place of the field would keep the row's focus.
        if (!editing)
            editor.focus = false
    }
    onTitleChanged: {
        // Typing has broken the field's binding; what others write still has to show, with the caret in place.
        const field = editor.item as OVTextField
        if (!field || field.text === title)
            return
        const caret = field.cursorPosition
        field.text = title
        field.cursorPosition = Math.min(caret, field.length)
    }

    OVText {
        anchors.verticalCenter: parent.verticalCenter
        color: root.isDone || root.title === "" ? Theme.ovInkTertiary : Theme.ovInk
        font.strikeout: root.isDone
        maximumLineCount: 1
        text: root.title === "" ? root.placeholder : DisplayText.shown(root.title)
        visible: !root.editing
        width: parent.width
    }

    TapHandler {
        enabled: !root.editing
        gesturePolicy: TapHandler.WithinBounds
        onTapped: eventPoint => {
            root.pointed()
            root.edit(eventPoint.position.x)
        }
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }

    OVLazyLoader {
        id: editor
        active: root.editing
        height: parent.height
        width: parent.width

        sourceComponent: OVTextField {
            color: root.isDone ? Theme.ovInkTertiary : Theme.ovInk
            font.strikeout: root.isDone
            placeholderText: root.placeholder
            plain: true
            storeBacked: true
            text: root.title
            Accessible.name: qsTr("Title")
            Keys.onEscapePressed: root.finished()
            onAccepted: root.finished()
            onRedoRequested: Orvel.undo.redo()
            onUndoRequested: Orvel.undo.undo()
            onTextEdited: root.edited(text)
        }
    }
}
