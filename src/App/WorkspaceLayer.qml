import QtQuick
import Orvel.App

/// The workspace below its menu bar, which gives way in full screen.
FocusScope {
    id: root

    required property OrvelCommands commands
    /// Whether there is time for what is not seen yet.
    property bool isSettled: true

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
        isSettled: root.isSettled
    }
}
