pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// What was chosen, before the workspace is entered.
OnboardingPage {
    id: root

    hero: Rectangle {
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSubtle
        height: width
        radius: Theme.cornerCard
        width: Theme.iconEmpty + Theme.space24

        OVEmoji {
            anchors.centerIn: parent
            size: Theme.iconEmpty
            text: root.onboarding.workspaceIcon
        }
    }

    OVCard {
        bottomPadding: Theme.space4
        leftPadding: Theme.space16
        rightPadding: Theme.space16
        topPadding: Theme.space4
        width: parent.width

        contentItem: Column {
            id: rows

            Repeater {
                model: root.onboarding.summary

                Item {
                    id: row

                    required property int index
                    required property var modelData

                    height: Theme.buttonHeight + Theme.space12
                    width: rows.width
                    Accessible.name: modelData.label + ": " + modelData.value
                    Accessible.role: Accessible.StaticText

                    OVIcon {
                        id: icon

                        anchors.verticalCenter: parent.verticalCenter
                        symbol: row.modelData.symbol
                    }

                    OVText {
                        id: label

                        anchors.left: icon.right
                        anchors.leftMargin: Theme.space12
                        anchors.verticalCenter: parent.verticalCenter
                        color: Theme.ovInkSecondary
                        text: row.modelData.label
                        Accessible.ignored: true
                    }

                    OVText {
                        anchors.left: label.right
                        anchors.leftMargin: Theme.space24
                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        font.weight: Font.Medium
                        horizontalAlignment: Text.AlignRight
                        text: row.modelData.value
                        Accessible.ignored: true
                    }

                    OVDivider {
                        anchors.bottom: parent.bottom
                        visible: row.index < root.onboarding.summary.length - 1
                        width: parent.width
                    }
                }
            }
        }
    }
}
