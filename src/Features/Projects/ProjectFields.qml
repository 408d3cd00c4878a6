import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// The icon, the name and the description of a project, edited where they stand.
FocusScope {
    id: root

    required property ProjectDetailViewModel viewModel
    readonly property int longestName: 1000

    /// Puts the caret to where a step was undone.
    /// @param caret -1 for the end
    function restore(field: string, caret: int) {
        putCaret(field === "name" ? name : description.input, caret)
    }

    function putCaret(input: var, caret: int) {
        input.forceActiveFocus(Qt.OtherFocusReason)
        input.cursorPosition = caret < 0 ? input.length : Math.min(caret, input.length)
    }

    /// Shows the text as it is stored, with the caret in place.
    function show(input: var, text: string) {
        if (input.text === text)
            return
        const caret = input.cursorPosition
        input.text = text
        input.cursorPosition = Math.min(caret, input.length)
    }

    implicitHeight: words.implicitHeight

    Component.onCompleted: {
        show(name, viewModel.name)
        show(description.input, viewModel.details)
    }

    Connections {
        target: root.viewModel

        function onProjectChanged() {
            root.show(name, root.viewModel.name)
            root.show(description.input, root.viewModel.details)
        }
    }

    OVEmoji {
        id: emoji
        height: name.height
        size: Theme.iconEmpty
        text: root.viewModel.icon
    }

    Column {
        id: words
        anchors.left: emoji.right
        anchors.leftMargin: Theme.space16
        anchors.right: parent.right
        spacing: Theme.space4

        OVTextField {
            id: name
            focus: true
            font.letterSpacing: -0.4 * Theme.fontScale
            font.pixelSize: Theme.sizeScreenTitle
            font.weight: Font.DemiBold
            maximumLength: Math.max(root.longestName, root.viewModel.name.length)
            placeholderText: qsTr("Project name")
            plain: true
            storeBacked: true
            width: parent.width
            wrapMode: TextInput.Wrap
            onAccepted: description.forceActiveFocus(Qt.OtherFocusReason)
            onRedoRequested: Orvel.undo.redo()
            onTextEdited: root.viewModel.name = text
            onUndoRequested: Orvel.undo.undo()
        }

        OVTextArea {
            id: description
            font.pixelSize: Theme.sizeBody
            input.color: Theme.ovInkSecondary
            maximumLines: 0
            minimumLines: 1
            placeholderText: qsTr("Add a description…")
            plain: true
            storeBacked: true
            width: parent.width
            input.onTextChanged: {
                // Only what is typed; what is shown is the same already.
                if (description.activeFocus && input.text !== root.viewModel.details)
                    root.viewModel.details = input.text
            }
            onRedoRequested: Orvel.undo.redo()
            onUndoRequested: Orvel.undo.undo()
        }
    }
}
