import QtQuick
import Orvel.DesignSystem
import Orvel.Tasks

/// What can be done with a task, for the right button and the Menu key.
OVMenu {
    id: menu

    required property TasksViewModel viewModel
    required property var taskID
    required property int status
    required property int priority
    required property bool hasDue

    signal editRequested()
    signal dueRequested()
    signal deleteRequested()

    component StatusItem: OVMenuItem {
        required property int value

        checkable: true
        checked: menu.status === value
        text: menu.viewModel.statusTexts[value]
        onTriggered: menu.viewModel.setTaskStatus(menu.taskID, value)
    }
    component PriorityItem: OVMenuItem {
        required property int value

        checkable: true
        checked: menu.priority === value
        text: qsTr("Priority: %1").arg(menu.viewModel.priorityTexts[value])
        onTriggered: menu.viewModel.setTaskPriority(menu.taskID, value)
    }

    OVMenuItem {
        shortcutText: "Return"
        symbol: "pencil"
        text: qsTr("Edit title")
        onTriggered: menu.editRequested()
    }

    OVMenuSeparator { }

    StatusItem { value: 0 }
    StatusItem { value: 1 }
    StatusItem { value: 2 }

    OVMenuSeparator { }

    PriorityItem { value: 0 }
    PriorityItem { value: 1 }
    PriorityItem { value: 2 }

    OVMenuSeparator { }

    OVMenuItem {
        shortcutText: "D"
        symbol: "calendar"
        text: menu.hasDue ? qsTr("Change due date…") : qsTr("Set due date…")
        onTriggered: menu.dueRequested()
    }

    OVMenuItem {
        enabled: menu.hasDue
        symbol: "xmark.circle"
        text: qsTr("Clear due date")
        onTriggered: menu.viewModel.setTaskDue(menu.taskID, new Date(NaN))
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        shortcutText: "Del"
        symbol: "trash"
        text: qsTr("Delete")
        onTriggered: menu.deleteRequested()
    }
}
