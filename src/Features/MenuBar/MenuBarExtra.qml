pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.MenuBar
import Orvel.Session

/// The icon on the desktop's panel, and the small window that it opens. The window is made at the first click.
Item {
    id: root

    readonly property Window mainWindow: Window.window
    property Window panel: null
    /// Where the icon was clicked.
    property point icon

    function place() {
        const corner = controller.place(icon, panel.width, panel.height)
        panel.x = corner.x
        panel.y = corner.y
    }

    function toggle(at: point) {
        // A click on the icon takes the focus from the panel first, which closes it.
        if (justClosed.running)
            return
        if (panel?.visible) {
            panel.hide()
            return
        }
        if (!panel)
            // As a child of an item it would belong to the main window, and be active along with it.
            panel = panelComponent.createObject(controller)
        icon = at
        root.place()
        panel.open()
    }

    function openMainWindow() {
        panel?.hide()
        controller.bringToFront(mainWindow)
    }

    visible: false

    MenuBarController {
        id: controller

        session: Orvel
        onDismissRequested: root.panel?.hide()
        onOpenRequested: root.openMainWindow()
        onQuitRequested: Qt.quit()
        onToggleRequested: place => root.toggle(place)
    }

    Connections {
        target: root.mainWindow

        // The last window's end is the program's end.
        function onClosing() {
            root.panel?.hide();
        }
    }

    Timer {
        id: justClosed

        interval: 250
    }

    Component {
        id: panelComponent

        Window {
            id: window

            /// Whether it has had the focus since it was opened.
            property bool wasActive: false

            /// Closes once the user has gone elsewhere.
            function followFocus() {
                if (active)
                    wasActive = true
                else if (wasActive && visible)
                    hide()
            }

            function open() {
                wasActive = false
                show()
                raise()
                requestActivate()
                content.begin()
            }

            color: Theme.ovSurface
            flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
            height: content.implicitHeight
            title: qsTr("Orvel")
            width: content.implicitWidth
            onHeightChanged: {
                if (visible)
                    root.place()
            }
            // The focus leaves the window before it is no longer active.
            onActiveChanged: Qt.callLater(followFocus)
            onActiveFocusItemChanged: Qt.callLater(followFocus)
            onVisibleChanged: {
                if (!visible)
                    justClosed.restart()
            }

            MenuBarPanel {
                id: content

                active: window.visible
                anchors.fill: parent
                focus: true
                onOpenRequested: root.openMainWindow()
                Keys.onEscapePressed: window.hide()
            }
        }
    }
}
