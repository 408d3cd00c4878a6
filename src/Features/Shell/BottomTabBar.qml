import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The first modules as tabs below the detail pane, everything else under "More".
FocusScope {
    id: root

    required property NavigationViewModel navigation
    readonly property int tabWidth: Math.round(84 * Theme.fontScale)

    implicitHeight: tabs.implicitHeight

    ShellGround {
        anchors.fill: parent
        edge: Qt.TopEdge
    }

    ShellWorkspaceMenu {
        anchors.left: parent.left
        anchors.leftMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        compact: true
        navigation: root.navigation
    }

    Row {
        anchors.centerIn: parent
        spacing: Theme.space4

        TabStrip {
            id: tabs

            focus: true
            model: root.navigation.inlineTabs
            navigation: root.navigation
            spacing: Theme.space8
            tabWidth: root.tabWidth
            upright: true
        }

        ShellTab {
            id: more

            anchors.verticalCenter: parent.verticalCenter
            chosen: root.navigation.isMoreChosen
            symbol: "ellipsis"
            text: qsTr("More")
            upright: true
            width: root.tabWidth
            OVAccessible.role: Accessible.ButtonMenu
            onClicked: menu.visible ? menu.close() : menu.open()

            ShellOverflowMenu {
                id: menu

                listsModules: true
                x: Math.round((more.width - width) / 2)
                y: -height - Theme.space8
            }
        }
    }

    OVIconButton {
        anchors.right: parent.right
        anchors.rightMargin: Theme.space16
        anchors.verticalCenter: parent.verticalCenter
        iconSize: Theme.iconHeader
        symbol: "magnifyingglass"
        text: qsTr("Search")
        onClicked: Orvel.ui.isSearchPresented = true
    }
}
