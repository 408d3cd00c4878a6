import QtQuick
import Orvel.DesignSystem
import Orvel.Transfer

/// How far reading or writing has come, with the way to stop it.
Row {
    id: root

    required property MarkdownTransfer transfer

    spacing: Theme.space12
    visible: transfer.isBusy

    OVProgressBar {
        anchors.verticalCenter: parent.verticalCenter
        value: root.transfer.progress
        width: parent.width - stop.width - Theme.space12
    }

    OVSecondaryButton {
        id: stop
        text: qsTr("Stop")
        onClicked: root.transfer.cancel()
    }
}
