import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// The status of a project, when it is due and how many of its tasks are done; below that how far it has come.
Column {
    id: root

    required property ProjectDetailViewModel viewModel

    spacing: Theme.space12

    Flow {
        spacing: Theme.space12
        width: parent.width

        OVMenuButton {
            menu: ProjectStatusMenu {
                projectID: root.viewModel.projectID
                status: root.viewModel.status.raw
                statuses: root.viewModel.statuses
            }
            text: root.viewModel.status.label
            Accessible.name: qsTr("Status: %1").arg(text)
        }

        OVSwitch {
            height: Theme.buttonHeight
            checked: root.viewModel.dueEnabled
            text: qsTr("Due date")
            onToggled: {
                root.viewModel.dueEnabled = checked
                checked = Qt.binding(() => root.viewModel.dueEnabled)
            }
        }

        OVDateField {
            height: Theme.buttonHeight
            name: qsTr("Due")
            now: Orvel.now()
            value: root.viewModel.due
            visible: root.viewModel.dueEnabled
            onAboutToOpen: now = Orvel.now()
            onEdited: moment => root.viewModel.due = moment
        }

        OVText {
            color: Theme.ovInkSecondary
            height: Theme.buttonHeight
            role: OVText.Dense
            text: root.viewModel.tasksText
        }
    }

    Row {
        spacing: Theme.space12
        width: parent.width

        OVProgressBar {
            anchors.verticalCenter: parent.verticalCenter
            value: root.viewModel.progress
            width: parent.width - percent.width - parent.spacing
            Accessible.name: qsTr("Progress")
        }

        OVText {
            id: percent
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: root.viewModel.percentText
        }
    }
}
