import QtQuick
import Orvel.Code
import Orvel.DesignSystem

/// What can be done with a document as a whole.
OVMenu {
    id: root

    required property CodeViewModel viewModel
    required property var documentID

    signal renameRequested()
    signal deleteRequested()

    OVMenuItem {
        shortcutText: "F2"
        symbol: "pencil"
        text: qsTr("Rename")
        onTriggered: root.renameRequested()
    }

    OVMenuItem {
        symbol: "plus.square.on.square"
        text: qsTr("Duplicate")
        onTriggered: root.viewModel.duplicate(root.documentID)
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        symbol: "trash"
        text: qsTr("Delete…")
        onTriggered: root.deleteRequested()
    }
}
