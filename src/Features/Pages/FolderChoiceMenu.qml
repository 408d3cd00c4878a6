pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The folders to which a page can be moved, the one it lies in with a check mark.
OVMenu {
    id: root

    required property PageMenuViewModel actions

    title: qsTr("Move to folder")
    width: Math.min(implicitWidth, Theme.sidebarWidth + Theme.space48)

    Instantiator {
        model: root.actions.folders
        onObjectAdded: (index, item) => root.insertItem(index, item as OVMenuItem)
        onObjectRemoved: (index, item) => root.removeItem(item as OVMenuItem)

        delegate: OVMenuItem {
            required property string name
            required property bool isCurrent
            required property var folderID

            // The choice that holds stays marked when it is made again.
            autoExclusive: true
            checkable: true
            checked: isCurrent
            // An ampersand would mark a mnemonic.
            text: name.replace(/&/g, "&&")
            onTriggered: root.actions.moveTo(folderID)
        }
    }
}
