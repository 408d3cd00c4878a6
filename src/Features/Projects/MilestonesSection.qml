pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Projects

/// The steps of a project, and a field for one more.
Column {
    id: root

    required property ProjectDetailViewModel viewModel

    spacing: Theme.space8

    OVSectionHeader {
        text: qsTr("Milestones")
        width: parent.width
    }

    OVCard {
        bottomPadding: Theme.space12
        topPadding: Theme.space12
        width: parent.width

        contentItem: Column {
            OVCardList {
                model: root.viewModel.milestones
                width: parent.width
                Accessible.name: qsTr("Milestones")

                delegate: MilestoneRow { viewModel: root.viewModel }
            }

            OVTextField {
                height: Theme.fieldHeight
                placeholderText: qsTr("Add a milestone")
                plain: true
                symbol: "plus"
                width: parent.width
                onAccepted: {
                    if (root.viewModel.addMilestone(text))
                        clear()
                }
            }
        }
    }
}
