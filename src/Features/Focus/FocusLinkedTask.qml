import QtQuick
import Orvel.DesignSystem
import Orvel.Focus

/// The task that the session is for.
Row {
    id: root

    required property FocusViewModel viewModel

    spacing: Theme.space8

    OVIcon {
        id: mark
        anchors.verticalCenter: parent.verticalCenter
        color: [Theme.ovInkSecondary, Theme.ovInfo, Theme.ovWarning, Theme.ovSuccess,
                Theme.ovDanger][root.viewModel.taskStatus.tone]
        symbol: root.viewModel.taskStatus.symbol
    }

    OVText {
        anchors.verticalCenter: parent.verticalCenter
        font.weight: Font.Medium
        text: root.viewModel.taskTitle
        width: Math.min(implicitWidth, Theme.fieldWidth * 1.5)
        Accessible.name: qsTr("%1, %2").arg(text).arg(root.viewModel.taskStatus.label)
    }

    OVIconButton {
        anchors.verticalCenter: parent.verticalCenter
        iconSize: Theme.iconRow
        symbol: "xmark"
        text: qsTr("Unlink task")
        onClicked: root.viewModel.unlinkTask()
    }
}
