pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Tasks

/// The filters of the list, one stop for Tab, and how many tasks the chosen one takes.
Item {
    id: bar

    required property TasksViewModel viewModel

    function choose(index: int) {
        const next = Math.max(0, Math.min(index, chips.count - 1))
        viewModel.filter = viewModel.filters[next].raw
        chips.itemAt(next).forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: row.height

    Row {
        id: row
        spacing: Theme.space8
        Accessible.name: qsTr("Filter")
        Accessible.role: Accessible.Grouping

        Repeater {
            id: chips
            model: bar.viewModel.filters

            OVChip {
                required property int index
                required property var modelData

                tabStop: checked || activeFocus
                checked: modelData.raw === bar.viewModel.filter
                text: modelData.label
                OVAccessible.role: Accessible.RadioButton
                Keys.onLeftPressed: bar.choose(index - 1)
                Keys.onRightPressed: bar.choose(index + 1)
                onClicked: bar.viewModel.filter = modelData.raw
            }
        }
    }

    OVText {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: bar.viewModel.countText
    }
}
