import QtQuick
import Orvel.DesignSystem
import Orvel.Today

/// A field for a thought, which becomes a note of its own.
OVTitledCard {
    id: root

    required property TodayViewModel viewModel

    function save() {
        viewModel.saveNote()
        area.forceActiveFocus(Qt.OtherFocusReason)
    }

    symbol: "note.text"
    title: qsTr("Quick note")

    OVTextArea {
        id: area
        placeholderText: qsTr("Write something down")
        text: root.viewModel.quickNote
        width: parent.width
        input.onTextChanged: root.viewModel.quickNote = input.text

        Keys.onPressed: event => {
            const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
            event.accepted = isReturn && (event.modifiers & Qt.ControlModifier) !== 0
            if (event.accepted)
                root.save()
        }

        Connections {
            target: root.viewModel

            // Typing has broken the binding of the text.
            function onQuickNoteChanged() {
                if (area.text !== root.viewModel.quickNote)
                    area.text = root.viewModel.quickNote
            }
        }
    }

    Item {
        height: button.height
        width: parent.width

        OVSecondaryButton {
            id: button
            anchors.right: parent.right
            enabled: root.viewModel.canSaveNote
            text: qsTr("Save as note")
            onClicked: root.save()
        }
    }
}
