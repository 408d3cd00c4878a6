import QtQuick
import Orvel.DesignSystem

/// The context menu of a text field or text area.
OVMenu {
    id: menu

    /// A TextInput or TextEdit.
    required property var target

    OVMenuItem {
        text: qsTr("Undo")
        symbol: "arrow.uturn.backward"
        shortcutText: "Ctrl Z"
        enabled: menu.target.canUndo && !menu.target.readOnly
        onTriggered: menu.target.undo()
    }

    OVMenuItem {
        text: qsTr("Redo")
        symbol: "arrow.uturn.forward"
        shortcutText: "Ctrl Shift Z"
        enabled: menu.target.canRedo && !menu.target.readOnly
        onTriggered: menu.target.redo()
    }

    OVMenuSeparator { }

    OVMenuItem {
        text: qsTr("Cut")
        symbol: "scissors"
        shortcutText: "Ctrl X"
        enabled: menu.target.selectedText !== "" && !menu.target.readOnly
        onTriggered: menu.target.cut()
    }

    OVMenuItem {
        text: qsTr("Copy")
        symbol: "doc.on.doc"
        shortcutText: "Ctrl C"
        enabled: menu.target.selectedText !== ""
        onTriggered: menu.target.copy()
    }

    OVMenuItem {
        text: qsTr("Paste")
        symbol: "doc.on.clipboard"
        shortcutText: "Ctrl V"
        enabled: menu.target.canPaste && !menu.target.readOnly
        onTriggered: menu.target.paste()
    }

    OVMenuSeparator { }

    OVMenuItem {
        text: qsTr("Select all")
        symbol: "selection.pin.in.out"
        shortcutText: "Ctrl A"
        enabled: menu.target.length > 0
        onTriggered: menu.target.selectAll()
    }
}
