pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The seven days of this week. The focus goes into them by `focusDay`.
Row {
    id: root

    property alias days: repeater.model
    required property color tint
    required property color markColor

    /// A day is to be flipped, counted from Sunday.
    signal toggled(weekday: int)

    /// The day that has the focus; -1 if it is none of them.
    function focusedDay(): int {
        for (let i = 0; i < repeater.count; ++i) {
            if (repeater.itemAt(i).activeFocus)
                return i
        }
        return -1
    }

    /// Gives the focus to a day; false if there is none to be flipped.
    function focusDay(weekday: int, reason: int): bool {
        const day = repeater.itemAt(weekday)
        if (!day || !day.enabled)
            return false
        day.forceActiveFocus(reason)
        return true
    }

    /// Leaves the focus to what the days stand in.
    function releaseFocus() {
        for (let i = 0; i < repeater.count; ++i)
            repeater.itemAt(i).focus = false
    }

    spacing: Theme.space4

    Repeater {
        id: repeater

        HabitDayButton {
            markColor: root.markColor
            tint: root.tint
            onClicked: root.toggled(index)
        }
    }
}
