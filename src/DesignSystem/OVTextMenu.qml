import QtQuick
import Orvel.DesignSystem

/// The context menu of a text field or text area.
OVMenu {
    id: menu

    /// A TextInput or TextEdit.
    required property var target
    /// Whether undo and redo are those of the application's history.
    property bool storeBacked: false

    signal undoRequested()
    signal redoRequested()

    /// What the menu's entry does, for a field that pastes in its own way.
    function paste() {
        target.paste()
    }

    OVMenuItem {
        text: qsTr("Undo")
        symbol: "arrow.uturn.backward"
        shortcutText: qsTr("Ctrl Z")
        enabled: menu.storeBacked || (menu.target.canUndo && !menu.target.readOnly)
        onTriggered: menu.storeBacked ? menu.undoRequested() : menu.target.undo()
    }

    OVMenuItem {
        text: qsTr("Redo")
        symbol: "arrow.uturn.forward"
        shortcutText: qsTr("Ctrl Shift Z")
        enabled: menu.storeBacked || (menu.target.canRedo && !menu.target.readOnly)
        onTriggered: menu.storeBacked ? menu.redoRequested() : menu.target.redo()
    }

    OVMenuSeparator { }

    OVMenuItem {
        text: qsTr("Cut")
        symbol: "scissors"
        shortcutText: qsTr("Ctrl X")
        enabled: menu.target.selectedText !== "" && !menu.target.readOnly
        onTriggered: menu.target.cut()
    }

    OVMenuItem {
        text: qsTr("Copy")
        symbol: "doc.on.doc"
        shortcutText: qsTr("Ctrl C")
        enabled: menu.target.selectedText !== ""
        onTriggered: menu.target.copy()
    }

    OVMenuItem {
        text: qsTr("Paste")
        symbol: "doc.on.clipboard"
        shortcutText: qsTr("Ctrl V")
        enabled: menu.target.canPaste && !menu.target.readOnly
        onTriggered: menu.paste()
    }

    OVMenuSeparator { }

    OVMenuItem {
        text: qsTr("Select all")
        symbol: "selection.pin.in.out"
        shortcutText: qsTr("Ctrl A")
        enabled: menu.target.length > 0
        onTriggered: menu.target.selectAll()
    }
}
