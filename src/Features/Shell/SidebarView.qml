import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The column of everything that can be opened: quick actions, modules, favourites, pages and folders.
FocusScope {
    id: root

    implicitWidth: Theme.sidebarWidth
    Accessible.name: qsTr("Sidebar")
    Accessible.role: Accessible.Pane

    NavigationViewModel {
        id: navigationModel

        store: Orvel.store
        ui: Orvel.ui
    }

    SidebarViewModel {
        id: sidebar

        isShown: root.visible
        store: Orvel.store
        ui: Orvel.ui
    }

    ShellGround {
        anchors.fill: parent
    }

    ShellWorkspaceMenu {
        id: header

        anchors.left: parent.left
        anchors.leftMargin: Theme.space8
        anchors.right: hideButton.left
        anchors.rightMargin: Theme.space4
        navigation: navigationModel
        y: Theme.space12
    }

    OVIconButton {
        id: hideButton

        anchors.right: parent.right
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: header.verticalCenter
        color: Theme.ovInkTertiary
        opacity: headerHover.hovered || visualFocus ? 1 : 0
        symbol: "sidebar.left"
        text: qsTr("Hide sidebar")
        onClicked: Orvel.ui.isSidebarVisible = false

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationHover }
        }
    }

    HoverHandler {
        id: headerHover

        parent: root
        target: root
    }

    SidebarList {
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: Theme.space8
        sidebar: sidebar
    }

    Item {
        id: footer

        anchors.bottom: parent.bottom
        height: settingsRow.height + 2 * Theme.space8
        width: parent.width

        SidebarRow {
            id: settingsRow

            tabStop: true
            anchors.verticalCenter: parent.verticalCenter
            chosen: sidebar.selection === "settings"
            showsIcon: sidebar.showsIcons
            symbol: "gearshape"
            text: qsTr("Settings")
            width: parent.width - 2 * x
            x: Theme.space12
            OVAccessible.role: Accessible.Button
            onClicked: Orvel.ui.select("settings")
        }
    }
}
