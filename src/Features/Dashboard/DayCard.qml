pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Dashboard
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks
import Orvel.Today

/// What is on today and what is due.
OVTitledCard {
    id: root

    required property DashboardViewModel viewModel

    symbol: "sun.max"
    title: qsTr("Your day")

    component Nothing: OVText {
        color: Theme.ovInkSecondary
        width: parent.width
        wrapMode: Text.Wrap
    }

    OVCardList {
        id: events
        model: root.viewModel.events
        width: parent.width
        Accessible.name: qsTr("Schedule")

        delegate: ScheduleRow {
            namesAllDay: false
        }
    }

    Nothing {
        text: qsTr("Nothing on the calendar today.")
        visible: events.count === 0
    }

    OVSectionHeader {
        height: implicitHeight + Theme.space16
        text: qsTr("DUE TODAY")
        width: parent.width
    }

    OVCardList {
        id: due
        model: root.viewModel.dueTasks
        width: parent.width
        Accessible.name: qsTr("Due today")

        delegate: TaskLine {
            openSymbol: "circle"
        }
    }

    Nothing {
        text: qsTr("You're all clear. Nice.")
        visible: due.count === 0
    }

    OVPressable {
        leftPadding: Theme.space8
        rightPadding: Theme.space8
        text: root.viewModel.moreDueText
        visible: text !== ""
        x: -Theme.space8
        onClicked: Orvel.ui.select("today")

        contentItem: OVButtonContent {
            color: Theme.ovInkSecondary
            symbol: "chevron.right"
            text: root.viewModel.moreDueText
            trailing: true
        }
    }
}
