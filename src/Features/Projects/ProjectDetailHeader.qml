import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// What stands above the tasks of a project.
FocusScope {
    id: root

    required property ProjectDetailViewModel viewModel

    /// The user goes on to the tasks.
    signal exited()

    function restore(field: string, caret: int) {
        fields.restore(field, caret)
    }

    implicitHeight: column.implicitHeight

    Column {
        id: column
        bottomPadding: Theme.space12
        spacing: Theme.space24
        topPadding: Theme.screenPadding
        width: parent.width

        OVPressable {
            id: back
            implicitHeight: Theme.iconButtonSize
            leftPadding: Theme.space4
            rightPadding: Theme.space8
            text: qsTr("All projects")
            x: -Theme.space4
            onClicked: Orvel.ui.select("projects")

            contentItem: OVButtonContent {
                color: back.hovered ? Theme.ovInk : Theme.ovInkSecondary
                symbol: "chevron.left"
                text: back.text
            }
        }

        ProjectFields {
            id: fields
            focus: true
            viewModel: root.viewModel
            width: parent.width
        }

        ProjectMetaRow {
            viewModel: root.viewModel
            width: parent.width
        }

        MilestonesSection {
            viewModel: root.viewModel
            width: parent.width
        }

        Column {
            spacing: Theme.space8
            width: parent.width

            OVSectionHeader {
                text: qsTr("Tasks")
                width: parent.width

                OVText {
                    color: Theme.ovInkSecondary
                    role: OVText.Caption
                    text: root.viewModel.openText
                }
            }

            OVTextField {
                placeholderText: qsTr("Add a task")
                symbol: "plus"
                width: parent.width
                Keys.onDownPressed: root.exited()
                onAccepted: {
                    if (root.viewModel.addTask(text))
                        clear()
                }
            }

            OVText {
                color: Theme.ovInkSecondary
                text: qsTr("No tasks yet.")
                topPadding: Theme.space8
                visible: !root.viewModel.hasTasks
                width: parent.width
            }
        }
    }
}
