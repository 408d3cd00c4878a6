pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// How one gets from screen to screen, and how tight and round everything is.
SettingsSection {
    id: root

    title: qsTr("Navigation")

    SettingGrid {
        id: grid

        evenHeights: true
        field: "theme.navigation"
        maximumColumns: 2
        minimumCellWidth: 230 * Theme.fontScale
        spacing: Theme.space12
        width: parent.width
        Accessible.name: root.title

        delegate: NavigationOption {
            required property int index
            required property string label
            required property bool isSelected

            tabStop: index === grid.current
            checked: isSelected
            height: grid.cellHeight
            text: label
            width: grid.cellWidth
            onClicked: grid.press(index)
        }
    }

    SettingSwitch {
        field: "theme.tabBarLabels"
        text: qsTr("Show labels in tab bar and dock")
    }

    SettingChips {
        capitalized: true
        field: "theme.density"
        label: qsTr("DENSITY")
        width: parent.width
    }

    SettingChips {
        capitalized: true
        field: "theme.corner"
        label: qsTr("CORNERS")
        width: parent.width
    }
}
