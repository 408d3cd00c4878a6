import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// The top bar (workspace menu, search and overflow) and the tabs below it, on one ground.
FocusScope {
    id: root

    required property NavigationViewModel navigation

    implicitHeight: column.y + column.height + Theme.space4

    ShellGround {
        anchors.fill: parent
        edge: Qt.BottomEdge
    }

    Column {
        id: column

        width: parent.width - 2 * x
        x: Theme.space8
        y: Theme.space4

        Item {
            height: workspace.height
            width: parent.width

            ShellWorkspaceMenu {
                id: workspace

                navigation: root.navigation
                width: Math.min(implicitWidth, trailing.x - x - Theme.space16)
                x: Theme.space4
            }

            Row {
                id: trailing

                anchors.right: parent.right
                anchors.rightMargin: Theme.space4
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.space8

                SearchPill {
                    navigation: root.navigation
                }

                OVIconButton {
                    id: more

                    anchors.verticalCenter: parent.verticalCenter
                    symbol: "ellipsis"
                    text: qsTr("More")
                    toolTip: menu.visible ? "" : text
                    OVAccessible.role: Accessible.ButtonMenu
                    onClicked: menu.visible ? menu.close() : menu.open()

                    ShellOverflowMenu {
                        id: menu

                        x: more.width - width
                        y: more.height + Theme.space8
                    }
                }
            }
        }

        TabStrip {
            focus: true
            model: root.navigation.tabs
            navigation: root.navigation
            spacing: 2
            width: parent.width
        }
    }
}
