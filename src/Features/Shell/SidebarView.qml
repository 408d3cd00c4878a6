import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The column of everything that can be opened: quick actions, modules, favourites, pages and folders.
FocusScope {
    id: root

    required property NavigationViewModel navigation

    implicitWidth: Theme.sidebarWidth
    Accessible.name: qsTr("Sidebar")
    Accessible.role: Accessible.Pane

    SidebarViewModel {
        id: sidebar

        active: root.visible
        session: Orvel
    }

    ShellGround {
        anchors.fill: parent
    }

    ShellWorkspaceMenu {
        id: header

        navigation: root.navigation
        width: parent.width - 2 * x
        x: Theme.space8
        y: Theme.space12
    }

    SidebarList {
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: Theme.space8
        focus: true
        navigation: root.navigation
        sidebar: sidebar
    }

    Row {
        id: footer

        anchors.bottom: parent.bottom
        bottomPadding: Theme.space8
        spacing: Theme.space4
        topPadding: Theme.space8
        x: Theme.space12

        SidebarRow {
            chosen: root.navigation.selection === "settings"
            showsIcon: Orvel.settings.sidebarShowsIcons
            tabStop: true
            symbol: "gearshape"
            text: qsTr("Settings")
            width: root.width - 2 * footer.x - hideButton.width - footer.spacing
            OVAccessible.role: Accessible.Button
            onClicked: Orvel.ui.select("settings")
        }

        OVIconButton {
            id: hideButton

            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkTertiary
            iconSize: Theme.iconRow
            symbol: "sidebar.left"
            text: qsTr("Hide sidebar")
            onClicked: Orvel.ui.isSidebarVisible = false
        }
    }
}
