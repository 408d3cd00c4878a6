import QtQuick
import Orvel.Dashboard
import Orvel.DesignSystem
import Orvel.Tasks

/// Where a task or a page begins.
OVTitledCard {
    id: root

    required property DashboardViewModel viewModel

    symbol: "bolt"
    title: qsTr("Quick capture")

    QuickTaskField {
        focus: true
        placeholderText: qsTr("Add a task")
        width: parent.width
    }

    OVSecondaryButton {
        symbol: "doc.badge.plus"
        text: qsTr("New page")
        onClicked: root.viewModel.newPage()
    }
}
