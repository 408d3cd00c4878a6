import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks
import Orvel.Today

/// A field for tasks, and the ways to something new.
OVCard {
    id: root

    required property TodayViewModel viewModel

    Accessible.name: qsTr("Quick actions")
    OVAccessible.role: Accessible.Grouping

    contentItem: Column {
        spacing: Theme.space12

        QuickTaskField {
            focus: true
            placeholderText: qsTr("Add a task")
            width: parent.width
        }

        Flow {
            spacing: Theme.space8
            width: parent.width

            OVSecondaryButton {
                symbol: "doc.badge.plus"
                text: qsTr("New page")
                onClicked: root.viewModel.newPage()
            }

            OVSecondaryButton {
                symbol: "note.text.badge.plus"
                text: qsTr("New note")
                onClicked: root.viewModel.newNote()
            }

            OVSecondaryButton {
                symbol: "timer"
                text: qsTr("Start focus")
                onClicked: Orvel.ui.select("focus")
            }

            OVSecondaryButton {
                symbol: "calendar.badge.plus"
                text: qsTr("New event")
                onClicked: Orvel.ui.select("calendar")
            }
        }
    }
}
