import QtQuick
import Orvel.DesignSystem
import Orvel.Tasks

/// What stands above the rows: the title of the screen, the form for a new task and the filters, and in place
/// of missing rows a word of calm.
FocusScope {
    id: root

    required property TasksViewModel viewModel

    implicitHeight: column.implicitHeight

    Column {
        id: column
        topPadding: Math.round(Theme.screenPadding * 1.25)
        width: parent.width

        OVPageHeader {
            subtitle: qsTr("Keep track of what needs doing.")
            symbol: "checkmark.square"
            title: qsTr("Tasks")
            width: parent.width
        }

        Item {
            height: Theme.space24
            width: parent.width
        }

        TaskAddForm {
            focus: true
            viewModel: root.viewModel
            width: parent.width
        }

        Item {
            height: Theme.space16
            width: parent.width
        }

        TaskFilterBar {
            viewModel: root.viewModel
            width: parent.width
        }

        Item {
            height: Theme.space12
            width: parent.width
        }

        Loader {
            active: root.viewModel.isEmpty
            width: parent.width

            sourceComponent: Item {
                implicitHeight: empty.implicitHeight + 2 * Theme.space48

                OVAppear {
                    anchors.centerIn: parent
                    width: parent.width

                    OVEmptyState {
                        id: empty
                        message: qsTr("Enjoy the calm  -  or add something above.")
                        symbol: "checkmark.circle"
                        title: qsTr("No open tasks")
                        width: parent.width
                    }
                }
            }
        }
    }
}
