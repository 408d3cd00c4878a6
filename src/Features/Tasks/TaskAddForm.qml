import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks

/// The form for a new task. In a narrow place its choices stand below the title.
FocusScope {
    id: form

    required property TasksViewModel viewModel
    readonly property var priorities: TaskActions.priorities
    readonly property int inset: Theme.space12
    readonly property bool stacked: choices.oneLine + Theme.fieldWidth + 2 * inset > width

    function submit() {
        viewModel.addTask()
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: stacked ? field.height + choices.height + 3 * inset : choices.height + 2 * inset

    Keys.onPressed: event => {
        if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && event.modifiers & Qt.ControlModifier) {
            submit()
            event.accepted = true
        }
    }

    OVCard {
        anchors.fill: parent
    }

    OVTextField {
        id: field
        focus: true
        height: Theme.buttonHeight
        placeholderText: qsTr("New task")
        plain: true
        symbol: "plus"
        text: form.viewModel.title
        width: form.stacked ? form.width - x - form.inset : choices.x - x - Theme.space12
        x: Theme.space16
        y: form.inset
        onAccepted: form.submit()
        onTextEdited: form.viewModel.title = text
    }

    Flow {
        id: choices
        spacing: Theme.space8
        width: Math.min(oneLine, form.width - 2 * form.inset)
        x: form.width - width - form.inset
        y: form.height - height - form.inset

        readonly property real oneLine: dueChoice.width + spacing + otherChoices.width

        Row {
            id: dueChoice
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
            id: otherChoices
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
}
