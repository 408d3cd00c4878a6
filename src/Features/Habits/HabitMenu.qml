import QtQuick
import Orvel.DesignSystem
import Orvel.Habits

/// What can be done with a habit.
OVMenu {
    id: root

    required property HabitsViewModel viewModel
    required property var habitID
    required property int target
    required property bool isDoneToday

    signal deleteRequested()

    component GoalItem: OVMenuItem {
        required property int goal

        checkable: true
        checked: root.target === goal
        text: qsTr("%1× a week").arg(goal)
        onTriggered: root.viewModel.setHabitTarget(root.habitID, goal)
    }

    name: qsTr("Habit")

    OVMenu {
        title: qsTr("Weekly goal")

        GoalItem { goal: 1 }
        GoalItem { goal: 2 }
        GoalItem { goal: 3 }
        GoalItem { goal: 4 }
        GoalItem { goal: 5 }
        GoalItem { goal: 6 }
        GoalItem { goal: 7 }
    }

    OVMenuItem {
        shortcutText: qsTr("Space")
        symbol: "checkmark.circle"
        text: root.isDoneToday ? qsTr("Mark not done") : qsTr("Mark done")
        onTriggered: root.viewModel.toggleToday(root.habitID)
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        shortcutText: qsTr("Del")
        symbol: "trash"
        text: qsTr("Delete")
        onTriggered: root.deleteRequested()
    }
}
