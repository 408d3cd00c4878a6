import QtQuick
import Orvel.DesignSystem
import Orvel.Tasks

/// What is shown above the tasks: the title of the screen, the form for a new task and the filters.
ScreenHeader {
    id: root

    required property TasksViewModel viewModel

    bottomGap: Theme.space12
    emptyMessage: qsTr("Enjoy the calm  -  or add something above.")
    emptySymbol: "checkmark.circle"
    emptyTitle: qsTr("No open tasks")
    isEmpty: viewModel.isEmpty
    subtitle: qsTr("Keep track of what needs doing.")
    symbol: "checkmark.square"
    title: qsTr("Tasks")

    TaskAddForm {
        focus: true
        viewModel: root.viewModel
        width: parent.width
    }

    TaskFilterBar {
        viewModel: root.viewModel
        width: parent.width
    }
}
