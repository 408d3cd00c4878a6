import QtQuick
import Orvel.DesignSystem
import Orvel.Transfer

/// Where all pages are written to.
OVSheet {
    id: sheet

    required property MarkdownTransfer transfer

    maximumWidth: Theme.promptWidth
    subtitle: qsTr("%L1 pages and notes, each a file, go into a new folder within the one you choose.").arg(transfer.exportCount)
    title: qsTr("Export all as Markdown")
    onAboutToShow: transfer.begin()
    onClosed: transfer.cancel()
    onOpened: pathField.forceActiveFocus(Qt.OtherFocusReason)

    Connections {
        target: sheet.transfer
        function onFinished() {
            sheet.close()
        }
    }

    Row {
        spacing: Theme.space8
        visible: !sheet.transfer.isBusy
        width: parent.width

        OVTextField {
            id: pathField
            focus: true
            placeholderText: qsTr("Path of a folder")
            width: parent.width - chooseButton.width - Theme.space8
            onAccepted: save.activate()
        }

        OVSecondaryButton {
            id: chooseButton
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Choose…")
            onClicked: sheet.transfer.chooseAndExport()
        }
    }

    OVText {
        color: Theme.ovDanger
        role: OVText.Dense
        text: sheet.transfer.error
        visible: text !== ""
        width: parent.width
        wrapMode: Text.Wrap
    }

    TransferProgress {
        transfer: sheet.transfer
        width: parent.width
    }

    footer: Row {
        anchors.right: parent.right
        spacing: Theme.space8

        OVSecondaryButton {
            text: qsTr("Cancel")
            onClicked: sheet.close()
        }

        OVPrimaryButton {
            id: save
            enabled: !sheet.transfer.isBusy && pathField.text.trim() !== ""
            text: qsTr("Export")
            onClicked: sheet.transfer.exportTo(pathField.text)
        }
    }
}
