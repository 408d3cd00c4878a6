import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The top bar and the tabs below it, on one ground.
FocusScope {
    id: root

    implicitHeight: column.implicitHeight + Theme.space8

    NavigationViewModel {
        id: navigationModel

        store: Orvel.store
        ui: Orvel.ui
    }

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
            navigation: navigationModel
            width: parent.width
        }

        TopTabBar {
            navigation: navigationModel
            width: parent.width
        }
    }
}
