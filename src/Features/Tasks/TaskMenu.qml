import QtQuick
import Orvel.DesignSystem
import Orvel.Tasks

/// What can be done with a task, for the right button and the Menu key.
OVMenu {
    id: root

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
        checked: root.status === value
        text: root.viewModel.statusTexts[value]
        onTriggered: root.viewModel.setTaskStatus(root.taskID, value)
    }
    component PriorityItem: OVMenuItem {
        required property int value

        checkable: true
        checked: root.priority === value
        text: qsTr("Priority: %1").arg(root.viewModel.priorityTexts[value])
        onTriggered: root.viewModel.setTaskPriority(root.taskID, value)
    }

    OVMenuItem {
        shortcutText: "Return"
        symbol: "pencil"
        text: qsTr("Edit title")
        onTriggered: root.editRequested()
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
        text: root.hasDue ? qsTr("Change due date…") : qsTr("Set due date…")
        onTriggered: root.dueRequested()
    }

    OVMenuItem {
        enabled: root.hasDue
        symbol: "xmark.circle"
        text: qsTr("Clear due date")
        onTriggered: root.viewModel.setTaskDue(root.taskID, new Date(NaN))
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        shortcutText: "Del"
        symbol: "trash"
        text: qsTr("Delete")
        onTriggered: root.deleteRequested()
    }
}
