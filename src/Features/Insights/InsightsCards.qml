pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Insights

/// The cards with the charts, as many side by side as have room.
GridLayout {
    id: root

    required property InsightsViewModel viewModel
    readonly property int smallestCard: Math.round(Theme.fieldWidth * 1.3)

    /// Something is on the clipboard now.
    signal copied(text: string)

    columnSpacing: Theme.space16
    columns: Math.max(1, Math.min(3, Math.floor((width + columnSpacing) / (smallestCard + columnSpacing))))
    rowSpacing: Theme.space16

    component Card: InsightCard {
        Layout.alignment: Qt.AlignTop
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        viewModel: root.viewModel
        onCopied: text => root.copied(text)
    }

    Card {
        emptyHint: qsTr("No tasks yet.")
        labelHeading: qsTr("Status")
        points: root.viewModel.statuses
        symbol: "chart.pie"
        title: qsTr("Task status")
        valueHeading: qsTr("Count")

        chart: OVRingChart {
            colors: Theme.inkMode ? [Theme.ovInkTertiary, Theme.ovInkSecondary, Theme.ovInk]
                                  : [Theme.ovInkSecondary, Theme.ovInfo, Theme.ovSuccess]
            unit: total === 1 ? qsTr("task") : qsTr("tasks")
        }
    }

    Card {
        emptyHint: qsTr("Nothing completed yet.")
        labelHeading: qsTr("Day")
        points: root.viewModel.completions
        symbol: "checkmark.circle"
        title: qsTr("Completed (14 days)")
        valueHeading: qsTr("Done")

        chart: OVLineChart { }
    }

    Card {
        emptyHint: qsTr("No pages in the last two weeks.")
        labelHeading: qsTr("Day")
        points: root.viewModel.pages
        symbol: "doc.text"
        title: qsTr("Pages created")
        valueHeading: qsTr("Pages")

        chart: OVBarChart { }
    }

    Card {
        emptyHint: qsTr("No events recorded yet.")
        labelHeading: qsTr("Month")
        points: root.viewModel.events
        symbol: "calendar"
        title: qsTr("Events by month")
        valueHeading: qsTr("Events")

        chart: OVBarChart { }
    }

    Card {
        emptyHint: qsTr("No active projects.")
        labelHeading: qsTr("Project")
        points: root.viewModel.projects
        symbol: "target"
        title: qsTr("Project progress")
        valueHeading: qsTr("Progress")

        chart: OVBarChart {
            horizontal: true
            maximum: 100
        }
    }

    Card {
        emptyHint: qsTr("No habits to show.")
        labelHeading: qsTr("Habit")
        points: root.viewModel.habits
        symbol: "flame"
        title: qsTr("Habits this week")
        valueHeading: qsTr("Done")

        chart: OVBarChart {
            readonly property var accents: root.viewModel.habitAccents
            colors: accents.map(accent => Theme.inkMode ? Theme.ovInk : Theme.dark ? accent.dark : accent.light)
            valuesShown: true
        }
    }
}
