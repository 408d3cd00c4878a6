pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Habits

/// A habit with its week. Space flips today, the arrow keys left and right go to the days of the week.
ScreenListRow {
    id: row

    required property HabitsViewModel viewModel
    required property var habitID
    required property string name
    required property string emoji
    required property var accent
    required property bool isDoneToday
    required property int streak
    required property int target
    required property string weekText
    required property var days

    readonly property color tint: Theme.inkMode ? Theme.accent : Theme.dark ? accent.dark : accent.light
    readonly property color markColor: Theme.inkMode ? Theme.onAccent : Theme.dark ? accent.onDark : accent.onLight
    readonly property int inset: Theme.space16
    readonly property real cardWidth: list?.columnWidth ?? 0
    /// In a narrow place the week stands below the name.
    readonly property bool stacked: cardWidth < mark.width + week.width + more.width + Theme.fieldWidth * 0.8 + 6 * Theme.space12
    readonly property alias week: week

    /// Removes the habit; the focus goes to its neighbour.
    function remove() {
        // The prompt below goes with the last habit.
        if (focus && list.count === (viewModel.composing ? 1 : 2))
            list.exitBackwards()
        else if (focus)
            list.keys.focus(index + 1 < list.count ? index + 1 : index - 1,
                            list.keys.ringShown ? Qt.TabFocusReason : Qt.MouseFocusReason)
        viewModel.remove(habitID)
    }

    /// Goes to the neighbour in this direction among the row itself and its days.
    function goSideways(step: int): bool {
        const next = week.focusedDay() + step
        if (next >= 0)
            return week.focusDay(next, Qt.TabFocusReason)
        if (next < -1)
            return false
        takeFocus(Qt.TabFocusReason)
        return true
    }

    /// Gives the focus to the row as a whole.
    function takeFocus(reason: int) {
        week.releaseFocus()
        list.keys.focus(index, reason)
    }

    /// Flips a day. The arrow keys go on from the one that was clicked.
    function toggleDay(weekday: int) {
        if (week.focusedDay() !== weekday)
            week.focusDay(weekday, Qt.MouseFocusReason)
        viewModel.toggleDay(habitID, weekday)
    }

    /// Goes to another row, staying on the same day.
    function goOn(key: int): bool {
        const day = week.focusedDay()
        if (!list.keys.press(key))
            return false
        const next = list.currentItem as HabitCard
        if (day >= 0 && next !== row)
            next?.week.focusDay(day, Qt.TabFocusReason)
        return true
    }

    /// Does what the key stands for; false for any other key.
    function act(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
            return goSideways(-1)
        case Qt.Key_Right:
            return goSideways(1)
        case Qt.Key_Space:
        case Qt.Key_Return:
        case Qt.Key_Enter:
            viewModel.toggleToday(habitID)
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            remove()
            return true
        }
        return goOn(key)
    }

    rowHeight: Theme.space12 + 2 * inset
               + (stacked ? Math.max(mark.height, title.height) + Theme.space12 + week.height
                          : Math.max(mark.height, title.height, week.height))
    Accessible.name: streak > 0 ? qsTr("%1, %2, streak: %3").arg(name).arg(weekText).arg(streak)
                                : qsTr("%1, %2").arg(name).arg(weekText)
    Accessible.checkable: true
    Accessible.checked: isDoneToday
    Accessible.focusable: true
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: viewModel.toggleToday(habitID)
    Accessible.onToggleAction: viewModel.toggleToday(habitID)

    onActiveFocusChanged: {
        if (!activeFocus)
            week.releaseFocus()
    }

    Keys.onPressed: event => {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier | Qt.ShiftModifier))
        event.accepted = plain && act(event.key)
        if (!event.accepted)
            contextMenu.handleKey(event)
    }

    Item {
        id: card
        height: parent.height - Theme.space12
        width: parent.width

        OVCard {
            anchors.fill: parent
        }

        OVFocusRing {
            shown: row.visualFocus && week.focusedDay() < 0
            targetRadius: Theme.cornerCard
        }

        OVContextMenuArea {
            id: contextMenu
            menu: HabitMenu {
                habitID: row.habitID
                isDoneToday: row.isDoneToday
                target: row.target
                viewModel: row.viewModel
                onDeleteRequested: row.remove()
            }
        }

        HabitMark {
            id: mark
            emoji: row.emoji
            isDone: row.isDoneToday
            markColor: row.markColor
            text: row.isDoneToday ? qsTr("Mark not done") : qsTr("Mark done")
            tint: row.tint
            x: row.inset
            y: row.stacked ? row.inset : Math.round((card.height - height) / 2)
            Accessible.name: qsTr("%1: %2").arg(text).arg(row.name)
            onClicked: {
                row.takeFocus(Qt.MouseFocusReason)
                row.viewModel.toggleToday(row.habitID)
            }
        }

        HabitTitle {
            id: title
            anchors.left: mark.right
            anchors.leftMargin: Theme.space12
            anchors.right: row.stacked ? more.left : week.left
            anchors.rightMargin: Theme.space12
            anchors.verticalCenter: mark.verticalCenter
            name: row.name
            streak: row.streak
            tint: row.tint
            weekText: row.weekText
        }

        HabitWeek {
            id: week
            days: row.days
            markColor: row.markColor
            tint: row.tint
            x: row.stacked ? row.inset - Theme.space4 : more.x - width - Theme.space8
            y: row.stacked ? card.height - height - row.inset : Math.round((card.height - height) / 2)
            onToggled: weekday => row.toggleDay(weekday)
        }

        OVIconButton {
            id: more
            anchors.right: parent.right
            anchors.rightMargin: Theme.space8
            anchors.verticalCenter: mark.verticalCenter
            symbol: "ellipsis"
            tabStop: false
            text: qsTr("More")
            Accessible.name: qsTr("More: %1").arg(row.name)
            onClicked: contextMenu.openAt(x, y + height)
        }
    }
}
