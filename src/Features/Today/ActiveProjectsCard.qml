pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Today

/// The projects at work, each with how far it has come.
OVTitledCard {
    id: root

    required property TodayViewModel viewModel

    symbol: "target"
    title: qsTr("Active projects")

    OVCardList {
        id: list
        model: root.viewModel.projects
        rowHeight: Theme.fieldHeight + Theme.space16
        width: parent.width
        Accessible.name: root.title

        delegate: OVCardListRow {
            id: line

            required property var projectID
            required property string icon
            required property string name
            required property double progress
            required property string percentText

            Accessible.name: qsTr("%1, %2").arg(name).arg(percentText)
            onActivated: Orvel.ui.selectProject(projectID)

            OVEmoji {
                id: emoji
                anchors.verticalCenter: parent.verticalCenter
                size: Theme.iconTile
                text: line.icon
            }

            Column {
                anchors.left: emoji.right
                anchors.leftMargin: Theme.space12
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.space8

                Item {
                    height: nameText.height
                    width: parent.width

                    OVText {
                        id: nameText
                        text: line.name
                        width: percent.x - Theme.space12
                        Accessible.ignored: true
                    }

                    OVText {
                        id: percent
                        anchors.right: parent.right
                        anchors.verticalCenter: nameText.verticalCenter
                        color: Theme.ovInkSecondary
                        role: OVText.Caption
                        text: line.percentText
                        Accessible.ignored: true
                    }
                }

                OVProgressBar {
                    value: line.progress
                    width: parent.width
                    Accessible.ignored: true
                }
            }
        }
    }

    OVText {
        color: Theme.ovInkSecondary
        text: qsTr("No active projects.")
        visible: list.count === 0
        width: parent.width
    }
}
