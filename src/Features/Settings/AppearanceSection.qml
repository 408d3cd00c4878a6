pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// Whether the window is light, dark, or as the desktop is.
SettingsSection {
    id: root

    title: qsTr("Appearance")

    SettingGrid {
        id: grid

        field: "appearance"
        maximumColumns: 3
        minimumCellWidth: 130 * Theme.fontScale
        spacing: Theme.space12
        width: parent.width
        Accessible.name: root.title

        delegate: OVLookCard {
            required property int index
            required property string label
            required property bool isSelected

            tabStop: index === grid.current
            checked: isSelected
            ratio: 0.62
            text: label
            width: grid.cellWidth
            onClicked: grid.press(index)
        }
    }
}
