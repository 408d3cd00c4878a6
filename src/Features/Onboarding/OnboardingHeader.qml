import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// The name of the program, and the way past all questions.
Item {
    id: root

    required property OnboardingViewModel onboarding

    implicitHeight: Theme.buttonHeight + 2 * Theme.space16

    OrvelMark {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        color: Theme.accent
        height: Theme.iconHeader
        width: height
        x: Theme.space32
    }

    OVText {
        anchors.left: mark.right
        anchors.leftMargin: Theme.space8
        anchors.verticalCenter: parent.verticalCenter
        font.weight: Font.DemiBold
        text: "Orvel"
    }

    OVPressable {
        id: skip

        anchors.right: parent.right
        anchors.rightMargin: Theme.space32 - rightPadding
        anchors.verticalCenter: parent.verticalCenter
        implicitHeight: Theme.chipHeight
        leftPadding: Theme.space12
        rightPadding: Theme.space12
        text: qsTr("Skip setup")
        visible: !root.onboarding.isLast
        onClicked: root.onboarding.jumpToReady()

        contentItem: OVButtonContent {
            color: skip.hovered ? Theme.ovInk : Theme.ovInkSecondary
            text: skip.text
        }
    }
}
