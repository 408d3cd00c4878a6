pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.Dashboard
import Orvel.DesignSystem
import Orvel.Session

/// The first screen: a thought, the numbers of the day, what is on and what was worked on last.
ScreenScaffold {
    id: root

    readonly property bool staggered: Visits.isFirst("dashboard")

    maximumWidth: Theme.gridWidth

    DashboardViewModel {
        id: dashboard
        active: root.visible
        session: Orvel
    }

    OVPageHeader {
        Layout.bottomMargin: Theme.space8
        Layout.fillWidth: true
        subtitle: dashboard.dateText
        symbol: "square.grid.2x2"
        title: qsTr("Dashboard")
    }

    OVAppear {
        Layout.fillWidth: true
        animated: root.staggered
        visible: Theme.showQuote

        QuoteCard {
            viewModel: dashboard
            width: parent.width
        }
    }

    OVAppear {
        Layout.fillWidth: true
        animated: root.staggered
        index: 1

        StatRow {
            viewModel: dashboard
            width: parent.width
        }
    }

    OVAppear {
        Layout.fillWidth: true
        animated: root.staggered
        index: 2

        OVCardColumns {
            width: parent.width

            first: [
                DayCard {
                    viewModel: dashboard
                    width: parent.width
                },
                OVTitledCard {
                    symbol: "chart.bar"
                    title: qsTr("Task progress")
                    width: parent.width

                    OVText {
                        color: Theme.ovInkSecondary
                        text: dashboard.progressText
                    }

                    OVProgressBar {
                        value: dashboard.progress
                        width: parent.width
                        Accessible.name: qsTr("Task progress")
                    }
                }
            ]
            second: [
                LibraryCard {
                    viewModel: dashboard
                    width: parent.width
                },
                QuickCaptureCard {
                    viewModel: dashboard
                    width: parent.width
                }
            ]
        }
    }
}
