pragma ComponentBehavior: Bound

import QtQml.Models
import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// The displays that the slide can be shown on.
OVMenu {
    id: root

    required property PresenterDisplays displays

    Instantiator {
        model: root.displays.names
        onObjectAdded: (index, item) => root.insertItem(index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            required property int index
            required property string modelData

            autoExclusive: true
            checkable: true
            checked: index === (root.displays.audience < 0 ? root.displays.own : root.displays.audience)
            text: index === root.displays.own ? qsTr("In this window only") : qsTr("On the display %1").arg(modelData)
            onTriggered: root.displays.choose(index)
        }
    }
}
