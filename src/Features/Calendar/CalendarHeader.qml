import QtQuick
import Orvel.Calendar
import Orvel.DesignSystem

/// What is shown above the days: the period with the way to others, the modes and the form for a new event.
ScreenHeader {
    id: root

    required property CalendarViewModel viewModel
    required property CalendarInterchange interchange

    signal stepRequested(delta: int)
    signal todayRequested()
    signal modeRequested(raw: string)

    function focusForm() {
        form.focusTitle()
    }

    bottomGap: Theme.space16
    symbol: "calendar"
    title: viewModel.periodLabel
    actions: [
        OVIconButton {
            symbol: "chevron.left"
            text: qsTr("Previous")
            onClicked: root.stepRequested(-1)
        },
        OVSecondaryButton {
            text: qsTr("Today")
            onClicked: root.todayRequested()
        },
        OVIconButton {
            symbol: "chevron.right"
            text: qsTr("Next")
            onClicked: root.stepRequested(1)
        },
        OVMenuIcon {
            menu: CalendarMenu { interchange: root.interchange }
            symbol: "ellipsis"
            text: qsTr("More")
        }
    ]

    OVChipGroup {
        choices: root.viewModel.modes
        current: root.viewModel.mode
        Accessible.name: qsTr("Mode")
        onChosen: raw => root.modeRequested(raw)
    }

    CalendarAddForm {
        id: form
        focus: true
        viewModel: root.viewModel
        width: parent.width
    }
}
