import QtQuick
import Orvel.App
import Orvel.Session
import Orvel.Shell

/// The workspace below its menu bar, which gives way in full screen.
FocusScope {
    id: root

    required property OrvelCommands commands

    focus: true

    OrvelMenuBar {
        id: menuBar
        anchors { left: parent.left; right: parent.right; top: parent.top }
        commands: root.commands
        height: visible ? implicitHeight : 0
        visible: root.Window.visibility !== Window.FullScreen
    }

    WorkspaceView {
        anchors { left: parent.left; right: parent.right; top: menuBar.bottom; bottom: parent.bottom }
        focus: true
    }

    // Text fields take these keys for themselves.
    Shortcut {
        context: Qt.ApplicationShortcut
        sequences: ["Ctrl+Z"]
        onActivated: Orvel.undo.undo()
    }

    Shortcut {
        context: Qt.ApplicationShortcut
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        onActivated: Orvel.undo.redo()
    }

    UndoToast { }
}
