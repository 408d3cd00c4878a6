pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// The ways in which a deck leaves the program.
OVMenu {
    id: root

    required property DeckExportViewModel deckExport

    Instantiator {
        model: root.deckExport.formats
        onObjectAdded: (index, item) => root.insertItem(index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            required property var modelData

            enabled: !root.deckExport.exporting
            symbol: "square.and.arrow.down"
            text: modelData.label
            onTriggered: root.deckExport.exportAs(modelData.raw)
        }
    }

    OVMenuSeparator { }

    OVMenuItem {
        symbol: "doc.on.doc"
        text: qsTr("Copy outline")
        onTriggered: root.deckExport.copyOutline()
    }
}
