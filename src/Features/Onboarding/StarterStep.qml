import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// Whether the workspace begins with examples.
OnboardingPage {
    id: root

    OVCard {
        padding: Theme.space24
        width: parent.width

        contentItem: OVSwitch {
            checked: root.onboarding.includeSamples
            detail: qsTr("Optional and off by default. Adds clearly-labelled sample pages, tasks, a project and habits so you can explore — your workspace stays empty otherwise.")
            font.weight: Font.Medium
            indicatorTrailing: true
            text: qsTr("Add example content")
            Keys.onEnterPressed: root.accepted()
            Keys.onReturnPressed: root.accepted()
            onToggled: root.onboarding.includeSamples = checked
        }
    }

    Rectangle {
        border.color: Qt.alpha(Theme.ovWarning, 0.35)
        border.width: Theme.lineWidth
        color: Qt.alpha(Theme.ovWarning, 0.1)
        height: warning.height + 2 * Theme.space16
        radius: Theme.cornerCard
        visible: root.onboarding.hidesEveryModule
        width: parent.width

        OVIcon {
            id: sign

            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovWarning
            size: Theme.iconHeader
            symbol: "exclamationmark.triangle"
            x: Theme.space16
        }

        OVText {
            id: warning

            anchors.left: sign.right
            anchors.leftMargin: Theme.space12
            anchors.right: parent.right
            anchors.rightMargin: Theme.space16
            anchors.verticalCenter: parent.verticalCenter
            role: OVText.Dense
            text: qsTr("You've hidden every module. The workspace will be empty until you re-enable some in Settings.")
            wrapMode: Text.Wrap
        }
    }
}
