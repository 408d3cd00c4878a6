import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// What can be done with a deck as a whole.
OVMenu {
    id: root

    required property DecksViewModel decks
    required property var deckID

    signal renameRequested()
    signal deleteRequested()

    OVMenuItem {
        shortcutText: qsTr("Ctrl Shift P")
        symbol: "play.rectangle"
        text: qsTr("Present")
        onTriggered: root.decks.present(root.deckID)
    }

    OVMenuSeparator { }

    OVMenuItem {
        shortcutText: "F2"
        symbol: "pencil"
        text: qsTr("Rename")
        onTriggered: root.renameRequested()
    }

    OVMenuItem {
        symbol: "plus.square.on.square"
        text: qsTr("Duplicate")
        onTriggered: root.decks.duplicate(root.deckID)
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        symbol: "trash"
        text: qsTr("Delete…")
        onTriggered: root.deleteRequested()
    }
}
