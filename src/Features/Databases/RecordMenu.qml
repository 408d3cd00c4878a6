import QtQuick
import Orvel.DesignSystem

/// What can be done with a record and the cell under the cursor, for the right button and the Menu key.
OVMenu {
    id: root

    required property RecordKeys keys

    OVMenuItem {
        shortcutText: "Ctrl C"
        symbol: "doc.on.doc"
        text: qsTr("Copy value")
        onTriggered: root.keys.copy()
    }

    OVMenuItem {
        shortcutText: "Ctrl V"
        symbol: "doc.on.clipboard"
        text: qsTr("Paste")
        onTriggered: root.keys.paste()
    }

    OVMenuItem {
        shortcutText: "Del"
        symbol: "xmark.circle"
        text: qsTr("Clear value")
        onTriggered: root.keys.clear()
    }

    OVMenuItem {
        symbol: "slider.horizontal.3"
        text: qsTr("Edit property…")
        onTriggered: root.keys.records.editProperty(root.keys.column)
    }

    OVMenuSeparator { }

    OVMenuItem {
        shortcutText: "Ctrl Return"
        symbol: "plus"
        text: qsTr("New record")
        onTriggered: root.keys.newRequested()
    }

    OVMenuItem {
        shortcutText: "Ctrl D"
        symbol: "plus.square.on.square"
        text: qsTr("Duplicate record")
        onTriggered: root.keys.duplicate()
    }

    OVMenuItem {
        destructive: true
        shortcutText: "Ctrl Del"
        symbol: "trash"
        text: qsTr("Delete record")
        onTriggered: root.keys.remove()
    }
}
