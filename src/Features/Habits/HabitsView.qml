pragma ComponentBehavior: Bound

import QtQuick
import Qt.labs.qmlmodels
import Orvel.DesignSystem
import Orvel.Habits
import Orvel.Session

/// The screen of all habits.
FocusScope {
    id: root

    /// Opens the form with its first field focused.
    function compose() {
        habits.composing = true
        header.focusComposer()
    }

    HabitsViewModel {
        id: habits
        active: root.visible
        session: Orvel
        onRevealed: row => list.keys.focus(row, Qt.TabFocusReason)
    }

    ScreenList {
        id: list
        anchors.fill: parent
        focus: true
        model: habits.rows
        screen: "habits"

        above: HabitsHeader {
            id: header
            focus: true
            viewModel: habits
            onComposeRequested: root.compose()
        }
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "prompt"

                delegate: HabitPrompt {
                    onTriggered: root.compose()
                }
            }

            DelegateChoice {
                delegate: HabitCard { viewModel: habits }
            }
        }
    }

    // The form is higher than a small window.
    OVFocusScroll {
        scope: header
        view: list
    }
}
