import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks

/// The form for a new task.
ScreenAddForm {
    id: form

    required property TasksViewModel viewModel
    readonly property var priorities: TaskActions.priorities

    placeholderText: qsTr("New task")
    title: viewModel.title
    onSubmitted: viewModel.addTask()
    onTitleEdited: title => viewModel.title = title

    Row {
        height: Theme.buttonHeight
        spacing: Theme.space8

        OVChip {
            anchors.verticalCenter: parent.verticalCenter
            checked: form.viewModel.dueEnabled
            symbol: "calendar"
            text: qsTr("Due date")
            onClicked: form.viewModel.dueEnabled = !form.viewModel.dueEnabled
        }

        OVDateField {
            anchors.verticalCenter: parent.verticalCenter
            compact: true
            name: qsTr("Due")
            now: Orvel.now()
            showsTime: true
            value: form.viewModel.due
            visible: form.viewModel.dueEnabled
            onAboutToOpen: now = Orvel.now()
            onEdited: moment => form.viewModel.due = moment
        }
    }

    Row {
        height: Theme.buttonHeight
        spacing: Theme.space8

        OVSegmentedControl {
            anchors.verticalCenter: parent.verticalCenter
            currentIndex: form.priorities.findIndex(choice => choice.raw === form.viewModel.priority)
            model: form.priorities.map(choice => choice.raw)
            Accessible.name: qsTr("Priority")
            onActivated: index => form.viewModel.priority = form.priorities[index].raw
        }

        OVPrimaryButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: form.viewModel.canAdd
            text: qsTr("Add")
            Accessible.name: qsTr("Add task")
            onClicked: form.submit()
        }
    }
}
