pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// Chips of which one holds, one stop for Tab; Left and Right choose. It never changes `current` itself: bind it, and
/// write what `chosen` says to where it comes from.
Row {
    id: group

    /// `Choice`s.
    required property var choices
    /// The raw text of the one that holds.
    property string current

    signal chosen(raw: string)

    function choose(index: int) {
        const next = Math.max(0, Math.min(index, chips.count - 1))
        chosen(choices[next].raw)
        chips.itemAt(next).forceActiveFocus(Qt.TabFocusReason)
    }

    spacing: Theme.space8
    Accessible.role: Accessible.Grouping

    Repeater {
        id: chips
        model: group.choices

        OVChip {
            required property int index
            required property var modelData

            tabStop: checked || activeFocus
            checked: modelData.raw === group.current
            text: modelData.label
            OVAccessible.role: Accessible.RadioButton
            Keys.onLeftPressed: group.choose(index - 1)
            Keys.onRightPressed: group.choose(index + 1)
            onClicked: group.chosen(modelData.raw)
        }
    }
}
