pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem
import Orvel.Insights
import Orvel.Session

/// The screen of figures and charts of the user's own work.
FocusScope {
    id: root

    InsightsViewModel {
        id: insights
        active: root.visible
        session: Orvel
    }

    OVToast {
        id: toast
        symbol: "checkmark"
    }

    ScreenScaffold {
        anchors.fill: parent
        focus: true
        maximumWidth: Theme.gridWidth
        spacing: Theme.space24

        OVPageHeader {
            Layout.fillWidth: true
            subtitle: qsTr("A gentle read on how you have been working.")
            symbol: "chart.line.uptrend.xyaxis"
            title: qsTr("Insights")
        }

        GridLayout {
            id: figures
            Layout.fillWidth: true
            columnSpacing: Theme.space16
            columns: width >= 3 * Theme.fieldWidth ? 4 : 2
            rowSpacing: Theme.space16

            component Figure: OVTile {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
            }

            Figure { label: qsTr("Tasks done"); symbol: "checkmark.circle"; value: insights.tasksDoneText }
            Figure { label: qsTr("Completion"); symbol: "target"; value: insights.completionText }
            Figure { label: qsTr("Pages"); symbol: "doc.text"; value: insights.pagesText }
            Figure { label: qsTr("Habit streak"); symbol: "flame"; value: insights.streakText }
        }

        InsightsCards {
            Layout.bottomMargin: Theme.space32
            Layout.fillWidth: true
            viewModel: insights
            onCopied: text => toast.show(text)
        }
    }
}
