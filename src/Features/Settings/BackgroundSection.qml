pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// What the window is painted with behind everything.
SettingsSection {
    id: root

    title: qsTr("Background")

    SettingGrid {
        id: grid

        field: "theme.canvas"
        maximumColumns: 7
        minimumCellWidth: 84 * Theme.fontScale
        spacing: Theme.space8
        width: parent.width
        Accessible.name: root.title

        delegate: OVPressable {
            id: tile

            required property int index
            required property string label
            required property string symbol
            required property var looks
            required property bool isSelected

            tabStop: index === grid.current
            checked: isSelected
            text: label
            width: grid.cellWidth
            Accessible.checkable: true
            Accessible.checked: checked
            OVAccessible.role: Accessible.RadioButton
            onClicked: grid.press(index)

            background: null
            contentItem: Column {
                spacing: Theme.space4

                Rectangle {
                    border.color: tile.checked ? Theme.accent : tile.hovered ? Theme.ovInkTertiary : Theme.ovBorderStrong
                    border.width: tile.checked ? 2 : Theme.lineWidth
                    height: Math.round(width * 0.62)
                    radius: Theme.cornerField
                    width: parent.width
                    gradient: Gradient {
                        GradientStop { position: 0; color: tile.looks[0].ground[0] }
                        GradientStop { position: 0.5; color: tile.looks[0].ground[1] }
                        GradientStop { position: 1; color: tile.looks[0].ground[2] }
                    }

                    OVIcon {
                        anchors.centerIn: parent
                        size: Theme.iconHeader
                        symbol: tile.symbol
                        visible: tile.symbol !== ""
                    }
                }

                OVText {
                    color: tile.checked ? Theme.ovInk : Theme.ovInkSecondary
                    font.weight: tile.checked ? Font.Medium : Theme.textWeight
                    horizontalAlignment: Text.AlignHCenter
                    role: OVText.Caption
                    text: tile.text
                    width: parent.width
                    Accessible.ignored: true
                }
            }
        }
    }
}
