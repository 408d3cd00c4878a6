import QtQuick
import Orvel.DesignSystem
import Orvel.Tasks

/// The filters of the list, and how many tasks the chosen one takes.
Item {
    id: bar

    required property TasksViewModel viewModel

    implicitHeight: filters.height

    OVChipGroup {
        id: filters
        choices: bar.viewModel.filters
        current: bar.viewModel.filter
        Accessible.name: qsTr("Filter")
        onChosen: raw => bar.viewModel.filter = raw
    }

    OVText {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: bar.viewModel.countText
    }
}
