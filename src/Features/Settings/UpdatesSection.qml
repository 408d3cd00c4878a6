import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Settings

/// Which version this is, and whether there is a newer one.
SettingsSection {
    id: root

    required property SettingsViewModel viewModel
    readonly property bool isChecking: Orvel.updates?.isChecking ?? false

    title: qsTr("Updates")

    OVText {
        color: Theme.ovInkSecondary
        text: root.viewModel.updatesText
        width: parent.width
        wrapMode: Text.Wrap
    }

    Row {
        spacing: Theme.space12
        width: parent.width

        OVSecondaryButton {
            // Disabled it would lose the focus.
            opacity: root.isChecking ? Theme.disabledOpacity : 1
            symbol: "arrow.clockwise"
            text: qsTr("Check for updates")
            onClicked: if (!root.isChecking) Orvel.updates.check(true)
        }

        OVBusyMark {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.isChecking
        }

        OVText {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: root.viewModel.versionText
        }
    }
}
