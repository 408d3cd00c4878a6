import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// What can be done with a task, for the right button and the Menu key.
OVMenu {
    id: root

    required property var taskID
    /// Raw texts.
    required property string status
    required property string priority
    required property bool hasDue

    signal editRequested()
    signal dueRequested()
    signal deleteRequested()

    component StatusItem: OVMenuItem {
        required property var choice

        checkable: true
        checked: root.status === choice.raw
        text: choice.label
        onTriggered: TaskActions.setStatus(root.taskID, choice.raw)
    }
    component PriorityItem: OVMenuItem {
        required property var choice

        checkable: true
        checked: root.priority === choice.raw
        text: qsTr("Priority: %1").arg(choice.raw)
        onTriggered: TaskActions.setPriority(root.taskID, choice.raw)
    }

    OVMenuItem {
        shortcutText: "Return"
        symbol: "pencil"
        text: qsTr("Edit title")
        onTriggered: root.editRequested()
    }

    OVMenuSeparator { }

    StatusItem { choice: TaskActions.statuses[0] }
    StatusItem { choice: TaskActions.statuses[1] }
    StatusItem { choice: TaskActions.statuses[2] }

    OVMenuSeparator { }

    PriorityItem { choice: TaskActions.priorities[0] }
    PriorityItem { choice: TaskActions.priorities[1] }
    PriorityItem { choice: TaskActions.priorities[2] }

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
        onTriggered: TaskActions.clearDue(root.taskID)
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
