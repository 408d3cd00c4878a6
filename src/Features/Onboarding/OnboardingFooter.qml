import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// The way back, where one is, and the way on.
Item {
    id: root

    required property OnboardingViewModel onboarding
    readonly property Item primaryButton: primary

    signal accepted

    implicitHeight: Theme.buttonHeight + 2 * Theme.space16

    OVDivider {
        width: parent.width
    }

    OVSecondaryButton {
        anchors.verticalCenter: parent.verticalCenter
        symbol: "chevron.left"
        text: qsTr("Back")
        visible: !root.onboarding.isFirst
        x: Theme.space32
        onClicked: root.onboarding.goBack()
    }

    ProgressMarks {
        anchors.centerIn: parent
        count: root.onboarding.stepCount
        current: root.onboarding.step
        text: root.onboarding.progressText
    }

    OVPrimaryButton {
        id: primary

        anchors.right: parent.right
        anchors.rightMargin: Theme.space32
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        symbol: "arrow.right"
        symbolTrailing: true
        text: root.onboarding.primaryText
        onClicked: root.accepted()
    }
}
