import QtQuick
import Orvel.App
import Orvel.DesignSystem
import Orvel.Session

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

    HistoryArrows {
        anchors { right: parent.right; rightMargin: Theme.space8; top: parent.top }
        height: menuBar.height
        visible: menuBar.visible
    }

    // The buttons at the side of a mouse.
    TapHandler {
        acceptedButtons: Qt.BackButton | Qt.ForwardButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: (eventPoint, button) => button === Qt.BackButton ? Orvel.visits.back() : Orvel.visits.forward()
    }

    WorkspaceView {
        commands: root.commands
        anchors { left: parent.left; right: parent.right; top: menuBar.bottom; bottom: parent.bottom }
        focus: true
        isSettled: root.isSettled
    }
}
