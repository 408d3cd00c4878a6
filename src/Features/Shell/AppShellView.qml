import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The detail pane with what the chosen style of navigation puts around it. The pane itself stays where the style
/// changes, so that the settings are not built anew while the person chooses among the styles.
FocusScope {
    id: root

    readonly property bool hasSidebar: navigation.style === "sidebar"

    NavigationViewModel {
        id: navigation

        store: Orvel.store
        ui: Orvel.ui
    }

    Item {
        id: column

        clip: true
        height: root.height
        visible: width > 0
        width: root.hasSidebar && Orvel.ui.isSidebarVisible ? Theme.sidebarWidth : 0

        Behavior on width {
            enabled: root.hasSidebar
            NumberAnimation { duration: 1.5 * Theme.durationScreen; easing.type: Easing.OutCubic }
        }

        Loader {
            active: root.hasSidebar
            anchors.right: parent.right
            height: parent.height
            width: Theme.sidebarWidth

            sourceComponent: SidebarView { }
        }
    }

    Loader {
        id: top

        active: navigation.style === "tabsTop"
        // A loader keeps the height of what it has dropped.
        height: active ? implicitHeight : 0
        width: root.width

        sourceComponent: ShellTopArea { }
    }

    DetailHost {
        anchors.bottom: bottom.top
        anchors.left: column.right
        anchors.right: parent.right
        anchors.top: top.bottom
        focus: true
        navigationHasFocus: root.activeFocus && !activeFocus
    }

    Loader {
        id: bottom

        anchors.bottom: parent.bottom
        height: sourceComponent ? implicitHeight : 0
        sourceComponent: navigation.style === "tabsBottom" ? bottomTabs : navigation.style === "glassDock" ? dock : null
        width: root.width
    }

    OVIconButton {
        symbol: "sidebar.left"
        text: qsTr("Show sidebar")
        visible: root.hasSidebar && !column.visible
        x: Theme.space8
        y: Theme.space8
        onClicked: Orvel.ui.isSidebarVisible = true
    }

    Component {
        id: bottomTabs

        BottomTabBar { }
    }

    Component {
        id: dock

        GlassDockBar { }
    }
}
