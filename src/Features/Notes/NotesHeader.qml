import QtQuick
import Orvel.DesignSystem
import Orvel.Notes

/// What stands above the cards: the title of the screen, the search and the way to a new note, and in place
/// of missing cards a word on that.
FocusScope {
    id: root

    required property NotesViewModel viewModel

    /// The person goes on to the cards.
    signal leaveDown()

    function focusSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    implicitHeight: column.implicitHeight

    Column {
        id: column
        bottomPadding: Theme.space24
        topPadding: Math.round(Theme.screenPadding * 1.25)
        width: parent.width

        OVPageHeader {
            symbol: "note.text"
            title: qsTr("Notes")
            width: parent.width
        }

        Item {
            height: Theme.space24
            width: parent.width
        }

        Item {
            height: Math.max(search.height, create.height)
            width: parent.width

            OVSearchField {
                id: search
                focus: true
                placeholderText: qsTr("Search notes")
                text: root.viewModel.query
                width: Math.min(2 * Theme.fieldWidth, parent.width - create.width - Theme.space12)
                Keys.onDownPressed: root.leaveDown()
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

        Loader {
            active: root.viewModel.isEmpty
            width: parent.width

            sourceComponent: Item {
                implicitHeight: empty.implicitHeight + 3 * Theme.space48

                OVAppear {
                    anchors.centerIn: parent
                    width: parent.width

                    OVEmptyState {
                        id: empty
                        actionSymbol: "plus"
                        actionText: root.viewModel.emptyAction
                        symbol: actionText === "" ? "magnifyingglass" : "note.text"
                        title: root.viewModel.emptyTitle
                        width: parent.width
                        onActionTriggered: root.viewModel.newNote()
                    }
                }
            }
        }
    }
}
