import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// Shows how far a file has been written, where that takes a while, and lets the user end it.
OVSheet {
    id: sheet

    required property CsvTransfer transfer
    readonly property bool wanted: transfer.isExporting

    maximumWidth: Theme.dialogWidth
    title: qsTr("Export CSV")

    onClosed: {
        if (wanted)
            transfer.cancelExport()
    }
    onWantedChanged: {
        if (!wanted)
            close()
    }

    // Most files are written before anyone could read this.
    readonly property Timer delay: Timer {
        interval: 300
        running: sheet.wanted
        onTriggered: sheet.open()
    }

    OVProgressBar {
        value: sheet.transfer.progress
        width: parent.width
        Accessible.name: sheet.title
    }

    footer: OVSecondaryButton {
        anchors.right: parent?.right
        text: qsTr("Cancel")
        onClicked: sheet.close()
    }
}
