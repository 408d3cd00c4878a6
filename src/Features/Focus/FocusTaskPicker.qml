import QtQuick
import Orvel.DesignSystem
import Orvel.Focus

/// The choice of the task that a session is for.
Column {
    id: root

    required property FocusViewModel viewModel

    spacing: Theme.space12

    OVSectionHeader {
        text: qsTr("Link a task")
        width: parent.width

        OVText {
            role: OVText.Caption
            text: qsTr("Optional")
        }
    }

    OVText {
        color: Theme.ovInkSecondary
        text: qsTr("No open tasks  -  add one on the Tasks page to link it here.")
        visible: !root.viewModel.hasTasks
        width: parent.width
        wrapMode: Text.Wrap
    }

    OVComboBox {
        currentIndex: root.viewModel.taskIndex
        displayText: root.viewModel.taskTitle
        model: root.viewModel.tasks
        placeholderText: qsTr("Choose a task…")
        textRole: "title"
        visible: root.viewModel.hasTasks
        width: parent.width
        Accessible.name: displayText === "" ? placeholderText : qsTr("Linked task: %1").arg(displayText)
        onActivated: index => root.viewModel.linkTask(index)
    }
}
