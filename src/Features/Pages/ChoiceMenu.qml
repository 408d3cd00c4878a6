pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick
import Orvel.DesignSystem

/// A menu of texts of which one is chosen.
OVMenu {
    id: root

    required property list<string> texts
    property list<string> symbols
    property int current: -1

    signal chosen(index: int)

    Instantiator {
        model: root.texts.length
        onObjectAdded: (index, item) => root.insertItem(index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            required property int index

            autoExclusive: true
            checkable: true
            checked: root.current === index
            symbol: root.symbols[index] ?? ""
            text: root.texts[index]
            onTriggered: root.chosen(index)
        }
    }
}
