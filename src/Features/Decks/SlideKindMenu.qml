pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick
import Orvel.DesignSystem

/// The kinds of slides.
OVMenu {
    id: root

    required property var kinds

    signal picked(kind: string)

    Instantiator {
        model: root.kinds
        onObjectAdded: (index, item) => root.insertItem(index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            required property var modelData

            text: modelData.label
            onTriggered: root.picked(modelData.raw)
        }
    }
}
