pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Settings

/// How much the workspace holds, and what is done with it as a whole.
SettingsSection {
    id: root

    required property SettingsViewModel viewModel

    symbol: "externaldrive"
    title: qsTr("Data")

    Row {
        width: parent.width

        Repeater {
            model: root.viewModel.counts

            Column {
                id: tile

                required property string label
                required property string count

                spacing: Theme.space4
                width: Math.floor(root.width / 5) - Theme.space8

                OVAnimatedNumber {
                    text: tile.count
                }

                OVText {
                    color: Theme.ovInkSecondary
                    role: OVText.Dense
                    text: tile.label
                    width: parent.width
                }
            }
        }
    }

    OVDivider {
        width: parent.width
    }

    Flow {
        spacing: Theme.space8
        width: parent.width

        OVSecondaryButton {
            symbol: "arrow.counterclockwise"
            text: qsTr("Re-run onboarding")
            onClicked: root.viewModel.rerunOnboarding()
        }

        OVSecondaryButton {
            destructive: true
            symbol: "trash"
            text: qsTr("Reset workspace")
            onClicked: confirmation.open()
        }
    }

    OVDialog {
        id: confirmation

        acceptText: qsTr("Reset everything")
        cautious: true
        destructive: true
        message: qsTr("This deletes all pages, tasks, projects and databases on this device. It cannot be undone.")
        rejectText: qsTr("Cancel")
        title: qsTr("Reset workspace?")
        onAccepted: root.viewModel.resetWorkspace()
    }
}
