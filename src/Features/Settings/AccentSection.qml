pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// The one colour of buttons, switches and marks.
SettingsSection {
    id: root

    title: qsTr("Accent")

    SettingGrid {
        id: grid

        field: "theme.accent"
        maximumColumns: 13
        minimumCellWidth: Theme.buttonHeight
        spacing: Theme.space12
        width: Math.min(parent.width, 13 * (Theme.buttonHeight + spacing))
        Accessible.name: root.title

        delegate: OVColorSwatch {
            required property int index
            required property string label
            required property bool isSelected
            required property color onColor

            tabStop: index === grid.current
            chosen: isSelected
            implicitHeight: Theme.buttonHeight
            implicitWidth: Theme.buttonHeight
            markColor: onColor
            text: label
            onClicked: grid.press(index)
        }
    }
}
