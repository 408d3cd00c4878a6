pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The detail pane with what the chosen style of navigation puts around it. The pane itself stays when the style
/// changes, so that the settings are not built anew while the user chooses a style.
FocusScope {
    id: root

    required property ScreenTable screens
    /// Height of what stands below the pane.
    readonly property real bottomHeight: bottom.height
    readonly property bool hasSidebar: Orvel.settings.navigation === "sidebar"
    /// What stands around the pane.
    readonly property Item navigationItem: (sidebar.item ?? top.item ?? bottom.item) as Item

    /// Moves the focus on when what had it in the navigation is gone.
    function keepFocus() {
        if (!activeFocus || host.activeFocus || navigationItem?.activeFocus)
            return
        if (hasSidebar && !Orvel.ui.isSidebarVisible)
            showButton.forceActiveFocus(Qt.TabFocusReason)
        else
            navigationItem.forceActiveFocus(Qt.TabFocusReason)
    }

    onNavigationItemChanged: Qt.callLater(keepFocus)

    NavigationViewModel {
        id: navigationModel

        session: Orvel
    }

    Item {
        id: column

        clip: true
        enabled: Orvel.ui.isSidebarVisible
        height: root.height
        visible: width > 0
        width: root.hasSidebar && Orvel.ui.isSidebarVisible ? Theme.sidebarWidth : 0
        onEnabledChanged: Qt.callLater(root.keepFocus)
        onVisibleChanged: Qt.callLater(root.keepFocus)

        Behavior on width {
            enabled: root.hasSidebar
            NumberAnimation { duration: 1.5 * Theme.durationScreen; easing.type: Easing.OutCubic }
        }

        OVLazyLoader {
            id: sidebar

            active: root.hasSidebar
            anchors.right: parent.right
            height: parent.height
            width: Theme.sidebarWidth

            sourceComponent: SidebarView {
                navigation: navigationModel
            }
        }
    }

    OVLazyLoader {
        id: top

        active: Orvel.settings.navigation === "tabsTop"
        height: implicitHeight
        width: root.width

        sourceComponent: ShellTopArea {
            navigation: navigationModel
        }
    }

    DetailHost {
        id: host

        anchors.bottom: bottom.top
        anchors.left: column.right
        anchors.right: parent.right
        anchors.top: top.bottom
        focus: true
        navigationHasFocus: root.activeFocus && !activeFocus
        screens: root.screens
    }

    OVLazyLoader {
        id: bottom

        active: sourceComponent !== null
        anchors.bottom: parent.bottom
        height: implicitHeight
        sourceComponent: Orvel.settings.navigation === "tabsBottom" ? bottomTabs : Orvel.settings.navigation === "glassDock" ? dock : null
        width: root.width
    }

    OVIconButton {
        id: showButton

        symbol: "sidebar.left"
        text: qsTr("Show sidebar")
        visible: root.hasSidebar && !Orvel.ui.isSidebarVisible
        x: Theme.space8
        y: Theme.space8
        onClicked: Orvel.ui.isSidebarVisible = true
        onVisibleChanged: Qt.callLater(root.keepFocus)
    }

    Component {
        id: bottomTabs

        BottomTabBar {
            navigation: navigationModel
        }
    }

    Component {
        id: dock

        GlassDockBar {
            navigation: navigationModel
        }
    }
}
