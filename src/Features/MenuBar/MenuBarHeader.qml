import QtQuick
import Orvel.DesignSystem
import Orvel.MenuBar

/// The workspace and a greeting.
Row {
    id: root

    required property MenuBarViewModel viewModel

    spacing: Theme.space12

    OVEmoji {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        size: Theme.iconTile
        text: root.viewModel.icon
    }

    Column {
        spacing: 2
        width: parent.width - icon.width - parent.spacing

        OVText {
            font.weight: Font.DemiBold
            text: root.viewModel.name
            width: parent.width
            Accessible.role: Accessible.Heading
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: root.viewModel.greeting
            width: parent.width
        }
    }
}
