pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Projects

/// What happened in a project, the newest first.
Column {
    id: root

    required property ProjectDetailViewModel viewModel

    spacing: Theme.space8
    visible: lines.count > 0

    OVSectionHeader {
        symbol: "clock.arrow.circlepath"
        text: qsTr("Activity")
        width: parent.width
    }

    Column {
        width: parent.width

        Repeater {
            id: lines
            model: root.viewModel.activities

            Item {
                id: line

                required property string text
                required property string dateText

                height: Theme.rowHeight
                width: parent?.width ?? 0
                Accessible.name: qsTr("%1, %2").arg(text).arg(dateText)
                Accessible.role: Accessible.StaticText

                OVText {
                    anchors.verticalCenter: parent.verticalCenter
                    role: OVText.Dense
                    text: line.text
                    width: date.x - Theme.space12
                    Accessible.ignored: true
                }

                OVText {
                    id: date
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    role: OVText.Caption
                    text: line.dateText
                    Accessible.ignored: true
                }
            }
        }
    }

    OVPressable {
        leftPadding: Theme.space8
        rightPadding: Theme.space8
        text: root.viewModel.moreActivitiesText
        visible: text !== ""
        x: -Theme.space8
        onClicked: root.viewModel.showMoreActivities()

        contentItem: OVButtonContent {
            color: Theme.ovInkSecondary
            symbol: "chevron.down"
            text: root.viewModel.moreActivitiesText
            trailing: true
        }
    }
}
