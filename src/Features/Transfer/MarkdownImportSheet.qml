pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Transfer

/// Which Markdown files are taken in, and what becomes of them.
OVSheet {
    id: sheet

    required property MarkdownTransfer transfer

    component Count: Item {
        required property string label
        required property int count

        height: visible ? Theme.rowHeight : 0
        visible: count > 0
        width: parent.width
        Accessible.name: qsTr("%1: %2").arg(label).arg(count)
        Accessible.role: Accessible.StaticText

        OVText {
            anchors.left: parent.left
            anchors.right: number.left
            anchors.verticalCenter: parent.verticalCenter
            text: parent.label
            Accessible.ignored: true
        }

        OVText {
            id: number
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            font.weight: Font.DemiBold
            text: Number(parent.count).toLocaleString(Qt.locale("en"), "f", 0)
            Accessible.ignored: true
        }
    }

    maximumWidth: Theme.promptWidth
    subtitle: qsTr("Each file becomes a page, each folder a folder.")
    title: qsTr("Import Markdown")
    onClosed: transfer.begin()
    onOpened: {
        const first = (add.visible ? add : pathField) as Item
        first.forceActiveFocus(Qt.OtherFocusReason)
    }

    Connections {
        target: sheet.transfer
        function onFinished() {
            sheet.close()
        }
        function onStateChanged() {
            if (sheet.opened && add.visible && sheet.activeFocus && !add.activeFocus)
                add.forceActiveFocus(Qt.OtherFocusReason)
        }
    }

    Column {
        spacing: Theme.space8
        visible: !sheet.transfer.isBusy && sheet.transfer.pageCount === 0
        width: parent.width

        Row {
            spacing: Theme.space8
            width: parent.width

            OVTextField {
                id: pathField
                focus: true
                placeholderText: qsTr("Path of a file or folder")
                width: parent.width - readButton.width - Theme.space8
                onAccepted: readButton.activate()
            }

            OVSecondaryButton {
                id: readButton
                anchors.verticalCenter: parent.verticalCenter
                enabled: pathField.text.trim() !== ""
                text: qsTr("Read")
                onClicked: sheet.transfer.readPlace(pathField.text)
            }
        }

        Flow {
            spacing: Theme.space8
            width: parent.width

            OVSecondaryButton {
                text: qsTr("Choose files…")
                onClicked: sheet.transfer.chooseFiles()
            }

            OVSecondaryButton {
                text: qsTr("Choose a folder…")
                onClicked: sheet.transfer.chooseFolder()
            }
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: qsTr("Files and folders can be dropped on the window as well.")
            visible: sheet.transfer.error === ""
            width: parent.width
            wrapMode: Text.Wrap
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

    Column {
        visible: sheet.transfer.pageCount > 0
        width: parent.width

        Count {
            count: sheet.transfer.pageCount
            label: qsTr("Pages")
        }

        Count {
            count: sheet.transfer.folderCount
            label: qsTr("Folders")
        }

        Count {
            count: sheet.transfer.skippedCount
            label: qsTr("Other files, which are left out")
        }
    }

    Column {
        spacing: Theme.space4
        visible: sheet.transfer.losses.length > 0
        width: parent.width

        OVSectionHeader {
            text: qsTr("Good to know")
            width: parent.width
        }

        Repeater {
            model: sheet.transfer.losses

            OVText {
                required property string modelData

                color: Theme.ovInkSecondary
                role: OVText.Dense
                text: modelData
                width: parent?.width ?? 0
                wrapMode: Text.Wrap
            }
        }
    }

    footer: Row {
        anchors.right: parent.right
        spacing: Theme.space8

        OVSecondaryButton {
            text: qsTr("Cancel")
            onClicked: sheet.close()
        }

        OVPrimaryButton {
            id: add
            text: sheet.transfer.pageCount === 1 ? qsTr("Import 1 page") : qsTr("Import %L1 pages").arg(sheet.transfer.pageCount)
            visible: sheet.transfer.pageCount > 0
            onClicked: sheet.transfer.addPages()
        }
    }
}
