pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// Which screens the navigation shows.
SettingsSection {
    id: root

    title: qsTr("Navigation modules")

    SettingGrid {
        id: grid

        exclusive: false
        field: "hiddenModules"
        maximumColumns: 2
        minimumCellWidth: 260 * Theme.fontScale
        spacing: Theme.space4
        width: parent.width
        Accessible.name: root.title

        delegate: ModuleOption {
            required property int index
            required property string label
            required property bool isSelected

            tabStop: index === grid.current
            checked: isSelected
            text: label
            width: grid.cellWidth
            onClicked: grid.press(index)
        }
    }
}
