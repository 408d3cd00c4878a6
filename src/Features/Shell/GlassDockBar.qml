pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// A floating dock of all visible modules below the detail pane, with the workspace menu, search and overflow.
FocusScope {
    id: root

    required property NavigationViewModel navigation
    /// All are as wide as the widest name, within limits.
    readonly property int tabWidth: Theme.tabBarLabels
                                    ? Math.ceil(Math.max(60 * Theme.fontScale, Math.min(92 * Theme.fontScale, tabs.widestTab)))
                                    : search.implicitHeight

    implicitHeight: dock.implicitHeight + Theme.space8 + Theme.space16

    OVGlassCapsule {
        id: dock

        anchors.horizontalCenter: parent.horizontalCenter
        implicitHeight: tabs.implicitHeight
        implicitWidth: row.implicitWidth + 2 * Theme.space8
        radius: Math.min(height / 2, Theme.cornerSheet + Theme.space4)
        y: Theme.space8

        OVShadow {
            radius: dock.radius
        }

        Row {
            id: row

            anchors.centerIn: parent

            ShellWorkspaceMenu {
                id: workspace

                anchors.verticalCenter: parent.verticalCenter
                compact: true
                navigation: root.navigation
            }

            Line { }

            TabStrip {
                id: tabs

                focus: true
                lifts: true
                model: root.navigation.tabs
                navigation: root.navigation
                spacing: Theme.tabBarLabels ? 0 : Theme.space4
                tabWidth: root.tabWidth
                upright: true
                width: Math.min(implicitWidth, root.width - workspace.width - 2 * root.tabWidth - 8 * Theme.space8)
            }

            Line { }

            ShellTab {
                id: search

                anchors.verticalCenter: parent.verticalCenter
                lifts: true
                symbol: "magnifyingglass"
                text: qsTr("Search")
                upright: true
                width: root.tabWidth
                OVAccessible.role: Accessible.Button
                onClicked: Orvel.ui.isSearchPresented = true
            }

            ShellTab {
                id: more

                anchors.verticalCenter: parent.verticalCenter
                lifts: true
                symbol: "ellipsis"
                text: qsTr("More")
                toolTip: labelled || menu.visible ? "" : text
                upright: true
                width: root.tabWidth
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
