pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Focus

/// The lengths that a session can have; they can't be changed while one runs.
Column {
    id: root

    required property FocusViewModel viewModel
    readonly property var presets: viewModel.presets
    readonly property int chosen: presets.indexOf(viewModel.minutes)

    spacing: Theme.space8

    OVText {
        horizontalAlignment: Text.AlignHCenter
        role: OVText.Section
        text: qsTr("DURATION")
        width: parent.width
        Accessible.ignored: true
    }

    ArrowGrid {
        id: grid

        columns: chips.count
        current: Math.max(0, root.chosen)
        enabled: !root.viewModel.isRunning
        items: chips
        spacing: Theme.space8
        Accessible.name: qsTr("Duration")
        Accessible.role: Accessible.Grouping
        onMoved: index => root.viewModel.choosePreset(index)

        Repeater {
            id: chips
            model: root.presets

            OVChip {
                required property int index
                required property int modelData

                checked: index === root.chosen
                tabStop: index === grid.current
                text: qsTr("%1 min").arg(modelData)
                toolTip: qsTr("Key: %1").arg(index + 1)
                OVAccessible.role: Accessible.RadioButton
                onClicked: {
                    grid.follow(index)
                    root.viewModel.choosePreset(index)
                }
            }
        }
    }
}
