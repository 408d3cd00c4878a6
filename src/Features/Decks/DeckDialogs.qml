import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// What the screen of decks asks and tells: before a deck is deleted, and of its exports.
Item {
    id: root

    required property DecksViewModel decks
    required property DeckExportViewModel deckExport
    readonly property bool busy: question.visible || failure.visible

    /// The question has been answered.
    signal closed(isFromRail: bool)

    /// Asks before a deck is deleted.
    function ask(deckID: var, isFromRail: bool) {
        question.deckID = deckID
        question.isFromRail = isFromRail
        question.message = qsTr("“%1” will be deleted.").arg(decks.titleOf(deckID))
        question.open()
    }

    OVDialog {
        id: question

        property var deckID
        property bool isFromRail: false

        acceptText: qsTr("Delete")
        cautious: true
        destructive: true
        rejectText: qsTr("Cancel")
        title: qsTr("Delete this deck?")
        onAccepted: root.decks.remove(deckID)
        onClosed: root.closed(isFromRail)
    }

    OVDialog {
        id: failure
        title: qsTr("The deck was not exported")
    }

    OVToast { id: toast }
    DeckExportToast { deckExport: root.deckExport }

    Connections {
        target: root.deckExport

        function onDone(message: string) {
            toast.show(message)
        }
        function onFailed(message: string) {
            failure.message = message
            failure.open()
        }
    }
}
