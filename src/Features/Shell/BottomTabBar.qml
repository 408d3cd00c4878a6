pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The first modules as tabs below the detail pane, everything else under "More".
FocusScope {
    id: root

    implicitHeight: more.implicitHeight + 2 * Theme.space4

    NavigationViewModel {
        id: navigationModel

        store: Orvel.store
        ui: Orvel.ui
    }

    ShellGround {
        anchors.fill: parent
        edge: Qt.TopEdge
    }

    ShellWorkspaceMenu {
        anchors.left: parent.left
        anchors.leftMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        compact: true
        navigation: navigationModel
    }

    Row {
        anchors.centerIn: parent
        spacing: Theme.space8

        TabStrip {
            height: more.implicitHeight
            model: navigationModel.inlineTabs
            spacing: Theme.space8
            tabCount: navigationModel.inlineTabCount
            tabWidth: more.implicitWidth

            delegate: BottomTab {
                required property string title
                required property string destination

                tabStop: false
                chosen: destination === navigationModel.selection
                text: title
                onClicked: Orvel.ui.select(destination)
            }
        }

        BottomTab {
            id: more

            chosen: navigationModel.isMoreChosen
            symbol: "ellipsis"
            text: qsTr("More")
            Accessible.role: Accessible.ButtonMenu
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

    component BottomTab: ShellTab {
        implicitWidth: Math.round(84 * Theme.fontScale)
        labelled: Theme.tabBarLabels
        upright: true
    }
}
