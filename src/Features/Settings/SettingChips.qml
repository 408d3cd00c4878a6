pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// A few values of a setting as chips, below its name.
Column {
    id: root

    required property string label
    required property string field
    /// Whether the chips show raw texts, which begin with a capital on the screen.
    property bool capitalized: false

    spacing: Theme.space8

    OVText {
        color: Theme.ovInkSecondary
        font.weight: Font.Medium
        role: OVText.Dense
        text: root.label
        width: parent.width
        Accessible.ignored: true
    }

    SettingGrid {
        id: grid

        field: root.field
        minimumCellWidth: 84 * Theme.fontScale
        width: Math.min(parent.width, (112 * Theme.fontScale + spacing) * 4)
        Accessible.name: root.label

        delegate: OVChip {
            required property int index
            required property string label
            required property bool isSelected

            tabStop: index === grid.current
            capitalized: root.capitalized
            checked: isSelected
            text: label
            width: grid.cellWidth
            OVAccessible.role: Accessible.RadioButton
            onClicked: grid.press(index)
        }
    }
}
