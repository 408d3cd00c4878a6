import QtQuick
import Qt.labs.qmlmodels
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session
import Orvel.Tasks

/// The page of one project.
FocusScope {
    id: root

    required property var projectID

    Accessible.name: project.name
    Accessible.role: Accessible.Pane

    ProjectDetailViewModel {
        id: project
        active: root.visible
        projectID: root.projectID
        session: Orvel
        onFieldRevealed: (field, caret) => header.restore(field, caret)
        onTaskRevealed: row => {
            // A title that is being typed keeps its caret.
            if (list.currentIndex !== row || !(list.currentItem as TaskRow)?.editing)
                list.keys.focus(row, Qt.TabFocusReason)
        }
    }

    OVFocusScroll {
        scope: header
        view: list
    }

    OVFocusScroll {
        scope: list.footerItem
        view: list
    }

    ScreenList {
        id: list
        anchors.fill: parent
        model: project.tasks

        above: ProjectDetailHeader {
            id: header
            focus: true
            viewModel: project
            onExited: list.keys.focus(0, Qt.TabFocusReason)
        }
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "completedHeader"

                delegate: CompletedHeader {
                    showDone: project.showDoneTasks
                    onToggled: project.showDoneTasks = !project.showDoneTasks
                }
            }

            DelegateChoice {
                delegate: TaskRow { togglesDone: true }
            }
        }
        footer: ProjectDetailFooter {
            taskList: list
            viewModel: project
        }
    }
}
