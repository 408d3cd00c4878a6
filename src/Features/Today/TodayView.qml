pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Tasks
import Orvel.Today

/// The day at hand: what is on, what is due, what is at work, and places to write something down.
ScreenScaffold {
    id: root

    readonly property bool staggered: Visits.isFirst("today")

    maximumWidth: Theme.gridWidth

    component Nothing: OVText {
        color: Theme.ovInkSecondary
        width: parent.width
        wrapMode: Text.Wrap
    }

    TodayViewModel {
        id: today
        active: root.visible
        session: Orvel
    }

    OVPageHeader {
        Layout.bottomMargin: Theme.space8
        Layout.fillWidth: true
        subtitle: today.summary
        title: today.greeting
    }

    OVAppear {
        Layout.fillWidth: true
        animated: root.staggered

        QuickActionsCard {
            focus: true
            viewModel: today
            width: parent.width
        }
    }

    OVCardColumns {
        Layout.fillWidth: true

        first: [
            OVTitledCard {
                symbol: "chart.bar"
                title: qsTr("Progress")
                width: parent.width

                OVAnimatedNumber {
                    text: today.percentText
                }

                OVProgressBar {
                    value: today.progress
                    width: parent.width
                    Accessible.name: qsTr("Progress")
                }

                Nothing { text: today.progressText }
            },
            OVTitledCard {
                symbol: "calendar"
                title: qsTr("Schedule")
                width: parent.width

                OVCardList {
                    id: schedule
                    model: today.schedule
                    width: parent.width
                    Accessible.name: qsTr("Schedule")

                    delegate: ScheduleRow { }
                }

                Nothing {
                    text: qsTr("Nothing scheduled today.")
                    visible: schedule.count === 0
                }
            },
            OVTitledCard {
                symbol: "checkmark.square"
                title: qsTr("Due today")
                width: parent.width

                OVCardList {
                    id: due
                    model: today.dueTasks
                    width: parent.width
                    Accessible.name: qsTr("Due today")

                    delegate: TaskLine { }
                }

                Nothing {
                    text: qsTr("No tasks due today  -  add one above.")
                    visible: due.count === 0
                }
            }
        ]
        second: [
            ActiveProjectsCard {
                viewModel: today
                width: parent.width
            },
            OVTitledCard {
                symbol: "clock.arrow.circlepath"
                title: qsTr("Recent")
                width: parent.width

                OVCardList {
                    id: recent
                    model: today.recentPages
                    width: parent.width
                    Accessible.name: qsTr("Recent")

                    delegate: PageLineRow { }
                }

                Nothing {
                    text: qsTr("Pages you open will appear here.")
                    visible: recent.count === 0
                }
            },
            QuickNoteCard {
                viewModel: today
                width: parent.width
            }
        ]
    }
}
