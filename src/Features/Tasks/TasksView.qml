pragma ComponentBehavior: Bound

import QtQuick
import Qt.labs.qmlmodels
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks

/// The screen of all tasks.
FocusScope {
    id: root

    TasksViewModel {
        id: tasks
        active: root.visible
        session: Orvel
        onRevealed: row => {
            // A title that is being typed keeps its caret.
            if (list.currentIndex !== row || !(list.currentItem as TaskRow)?.editing)
                list.keys.focus(row, Qt.TabFocusReason)
        }
    }

    ScreenList {
        id: list
        anchors.fill: parent
        focus: true
        model: tasks.rows
        reuseItems: true
        screen: "tasks"

        above: TasksHeader {
            focus: true
            viewModel: tasks
        }
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "completedHeader"

                delegate: CompletedHeader {
                    showDone: tasks.showDone
                    onToggled: tasks.showDone = !tasks.showDone
                }
            }

            DelegateChoice {
                delegate: TaskRow { }
            }
        }
    }
}
