import QtQuick
import Orvel.DesignSystem
import Orvel.MenuBar

/// A field for the next task of today. It keeps the focus, and a mark tells for a moment that a task was added.
Row {
    id: root

    required property MenuBarViewModel viewModel
    property alias field: field

    function add() {
        if (viewModel.addTask(field.text)) {
            field.clear()
            added.restart()
        }
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    spacing: Theme.space8

    OVTextField {
        id: field

        focus: true
        placeholderText: qsTr("Quick add a task")
        width: parent.width - button.width - parent.spacing
        onAccepted: root.add()

        OVCheckMark {
            anchors.right: parent.right
            anchors.rightMargin: Theme.space8
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovSuccess
            height: Theme.iconHeader
            shown: added.running
            visible: shown
            width: height
            Accessible.ignored: !shown
            Accessible.name: qsTr("Task added")
        }
    }

    OVIconButton {
        id: button

        anchors.verticalCenter: parent.verticalCenter
        enabled: field.text.trim() !== ""
        symbol: "arrow.up"
        text: qsTr("Add task")
        onClicked: root.add()
    }

    Timer {
        id: added

        interval: Theme.toastDuration / 2
    }
}
