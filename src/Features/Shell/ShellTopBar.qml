import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Shell

/// The bar above the tabs: workspace menu, search and overflow.
Item {
    id: root

    required property NavigationViewModel navigation

    implicitHeight: workspace.implicitHeight

    ShellWorkspaceMenu {
        id: workspace

        navigation: root.navigation
        width: Math.min(implicitWidth, trailing.x - Theme.space16)
    }

    RowLayout {
        id: trailing

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space8

        SearchPill {
            navigation: root.navigation
        }

        OverflowButton { }
    }
}
