pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// A floating dock of all visible modules below the detail pane, with the workspace menu, search and overflow.
FocusScope {
    id: root

    implicitHeight: dock.implicitHeight + Theme.space8 + Theme.space16

    NavigationViewModel {
        id: navigationModel

        store: Orvel.store
        ui: Orvel.ui
    }

    OVGlassCapsule {
        id: dock

        anchors.horizontalCenter: parent.horizontalCenter
        implicitHeight: row.implicitHeight + 2 * Theme.space4
        implicitWidth: row.implicitWidth + 2 * Theme.space8
        radius: Math.min(height / 2, Theme.cornerSheet + Theme.space4)
        y: Theme.space8

        OVShadow {
            radius: dock.radius
        }

        Row {
            id: row

            anchors.centerIn: parent
            spacing: Theme.space4

            ShellWorkspaceMenu {
                id: workspace

                anchors.verticalCenter: parent.verticalCenter
                compact: true
                navigation: navigationModel
            }

            Line { }

            TabStrip {
                anchors.verticalCenter: parent.verticalCenter
                chosenTab: navigationModel.chosenTab
                ground: Theme.ovSurface
                height: search.implicitHeight
                model: navigationModel.tabs
                tabCount: navigationModel.tabCount
                tabWidth: search.implicitWidth
                width: Math.min(implicitWidth, root.width - workspace.width - search.width - more.width - 10 * Theme.space8)

                delegate: DockButton {
                    required property string title
                    required property string destination

                    tabStop: false
                    chosen: destination === navigationModel.selection
                    text: title
                    onClicked: Orvel.ui.select(destination)
                }
            }

            Line { }

            DockButton {
                id: search

                symbol: "magnifyingglass"
                text: qsTr("Search")
                OVAccessible.role: Accessible.Button
                onClicked: Orvel.ui.isSearchPresented = true
            }

            DockButton {
                id: more

                symbol: "ellipsis"
                text: qsTr("More")
                toolTip: menu.visible ? "" : text
                OVAccessible.role: Accessible.ButtonMenu
                onClicked: menu.visible ? menu.close() : menu.open()

                ShellOverflowMenu {
                    id: menu

                    x: more.width - width
                    y: -height - Theme.space12
                }
            }
        }
    }

    component Line: Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovBorder
        height: Theme.iconTile
        width: Theme.lineWidth
    }
}
