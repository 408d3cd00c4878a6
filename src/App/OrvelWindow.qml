pragma ComponentBehavior: Bound

import QtQuick
import Orvel.App
import Orvel.DesignSystem
import Orvel.Session

/// The one main window.
Window {
    id: window

    /// The settings file that remembers where the window stood; empty remembers nothing.
    required property string placementPath
    /// Whether something of the window is still on its way.
    readonly property alias loading: rootView.loading
    /// Until the workspace, or what comes before it, is there for the first time.
    readonly property alias starting: rootView.starting
    property int visibilityBeforeFullScreen: Window.Windowed

    function toggleFullScreen() {
        if (visibility === Window.FullScreen) {
            visibility = visibilityBeforeFullScreen
        } else {
            visibilityBeforeFullScreen = visibility
            visibility = Window.FullScreen
        }
    }

    width: 1240
    height: 820
    minimumWidth: 720
    minimumHeight: 480
    title: Orvel.settings.workspaceName
    color: Theme.ovCanvas

    Component.onCompleted: {
        placement.restore()
        visible = true
    }

    OrvelCommands {
        id: commands
        session: Orvel
        onFullScreenToggled: window.toggleFullScreen()
        onQuitRequested: Qt.quit()
    }

    WindowPlacement {
        id: placement
        settingsPath: window.placementPath
        window: window
    }

    UndoKeys {
        window: window
    }

    CommandKeys {
        active: rootView.isDrawn
        commands: commands
    }

    RootView {
        id: rootView

        anchors.fill: parent
        commands: commands
    }

    Loader {
        active: rootView.isSettled
        source: "../MenuBar/MenuBarExtra.qml"
    }
}
