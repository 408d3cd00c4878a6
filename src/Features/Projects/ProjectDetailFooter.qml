import QtQuick
import Orvel.DesignSystem
import Orvel.Projects
import Orvel.Session

/// What stands below the tasks of a project.
FocusScope {
    id: root

    required property ProjectDetailViewModel viewModel
    required property ScreenList taskList

    height: column.implicitHeight
    width: taskList.width

    Column {
        id: column
        bottomPadding: root.taskList.padding
        spacing: Theme.space24
        topPadding: Theme.space24
        width: root.taskList.columnWidth
        x: root.taskList.columnX

        ActivitySection {
            viewModel: root.viewModel
            width: parent.width
        }

        OVSecondaryButton {
            destructive: true
            symbol: "trash"
            text: qsTr("Delete project")
            onClicked: ProjectActions.remove(root.viewModel.projectID)
        }
    }
}
