import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// What the program is for.
OnboardingPage {
    spacing: Theme.space32

    FeatureRow {
        detail: qsTr("A block editor with headings, to-dos, callouts and code.")
        symbol: "doc.text"
        title: qsTr("Pages & notes")
        width: parent.width
    }

    FeatureRow {
        detail: qsTr("Due dates feed straight into your day and month views.")
        symbol: "checkmark.square"
        title: qsTr("Tasks & calendar")
        width: parent.width
    }

    FeatureRow {
        detail: qsTr("Group work, track progress and build flexible tables.")
        symbol: "tablecells"
        title: qsTr("Projects & databases")
        width: parent.width
    }

    OVDivider {
        width: parent.width
    }

    Row {
        spacing: Theme.space8
        width: parent.width

        OVIcon {
            id: lock

            anchors.verticalCenter: parent.verticalCenter
            symbol: "lock"
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: qsTr("Everything is stored locally. No account required.")
            width: parent.width - lock.width - parent.spacing
            wrapMode: Text.Wrap
        }
    }
}
