import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// The top bar and the tabs below it, on one ground.
FocusScope {
    id: root

    required property NavigationViewModel navigation

    implicitHeight: column.implicitHeight + Theme.space8

    ShellGround {
        anchors.fill: parent
        edge: Qt.BottomEdge
    }

    Column {
        id: column

        anchors.left: parent.left
        anchors.leftMargin: Theme.space12
        anchors.right: parent.right
        anchors.rightMargin: Theme.space12
        spacing: Theme.space4
        y: Theme.space4

        ShellTopBar {
            navigation: root.navigation
            width: parent.width
        }

        TopTabBar {
            navigation: root.navigation
            width: parent.width
        }
    }
}
