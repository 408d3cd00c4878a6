pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings

/// Whole looks: each sets accent, background, font, corners, density and animation at once.
SettingsSection {
    id: root

    readonly property Setting ink: Setting {
        field: "inkMode"
        session: Orvel
    }

    title: qsTr("Themes")

    SettingGrid {
        id: grid

        field: "theme.preset"
        minimumCellWidth: 140 * Theme.fontScale
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

    OVText {
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: qsTr("E-ink display mode is on: themes, accents and backgrounds are kept and show once it is off.")
        visible: root.ink.value === true
        width: parent.width
        wrapMode: Text.Wrap
    }
}
