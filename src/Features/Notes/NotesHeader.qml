import QtQuick
import Orvel.DesignSystem
import Orvel.Notes

/// What is shown above the cards: the title of the screen, the search and the way to a new note.
ScreenHeader {
    id: root

    required property NotesViewModel viewModel

    /// The user goes on to the cards.
    signal exited(edge: int)

    function focusSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    emptyAction: viewModel.emptyAction
    emptySymbol: emptyAction === "" ? "magnifyingglass" : "note.text"
    emptyTitle: viewModel.emptyTitle
    isEmpty: viewModel.isEmpty
    symbol: "note.text"
    title: qsTr("Notes")
    onEmptyActionTriggered: viewModel.newNote()

    Item {
        height: Math.max(search.height, create.height)
        width: parent.width

        OVSearchField {
            id: search
            focus: true
            placeholderText: qsTr("Search notes")
            text: root.viewModel.query
            width: Math.min(2 * Theme.fieldWidth, parent.width - create.width - Theme.space12)
            Keys.onDownPressed: root.exited(Qt.BottomEdge)
            onTextEdited: root.viewModel.query = text
        }

        OVPrimaryButton {
            id: create
            anchors.right: parent.right
            anchors.verticalCenter: search.verticalCenter
            symbol: "plus"
            text: qsTr("New note")
            onClicked: root.viewModel.newNote()
        }
    }
}
