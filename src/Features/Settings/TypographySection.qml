pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// The typeface of the window and its size.
SettingsSection {
    id: root

    title: qsTr("Typography")

    SettingGrid {
        id: grid

        evenHeights: true
        field: "theme.font"
        minimumCellWidth: 110 * Theme.fontScale
        spacing: Theme.space12
        width: parent.width
        Accessible.name: root.title

        delegate: OVPressable {
            id: sample

            required property int index
            required property string label
            required property string family
            required property bool isSelected

            bottomPadding: Theme.space12
            tabStop: index === grid.current
            checked: isSelected
            radius: Theme.cornerCard
            text: label
            height: grid.cellHeight
            topPadding: Theme.space12
            width: grid.cellWidth
            Accessible.checkable: true
            Accessible.checked: checked
            OVAccessible.role: Accessible.RadioButton
            onClicked: grid.press(index)

            background: OVOptionSurface {
                chosen: sample.checked
                hovered: sample.hovered
                radius: sample.radius
            }
            contentItem: Column {
                spacing: Theme.space4

                OVText {
                    font.family: sample.family
                    horizontalAlignment: Text.AlignHCenter
                    role: OVText.Tile
                    text: qsTr("Aa")
                    width: parent.width
                    Accessible.ignored: true
                }

                OVText {
                    color: sample.checked ? Theme.ovInk : Theme.ovInkSecondary
                    font.family: sample.family
                    horizontalAlignment: Text.AlignHCenter
                    role: OVText.Dense
                    text: sample.text
                    width: parent.width
                    Accessible.ignored: true
                }
            }
        }
    }

    SettingChips {
        field: "theme.fontScale"
        label: qsTr("Text size")
        width: parent.width
    }
}
