pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// Takes a file of comma-separated values in: which file, what its columns become, and where its records go.
OVSheet {
    id: sheet

    required property CsvTransfer transfer
    required property DatabasesViewModel viewModel
    readonly property int matches: transfer.isRead ? transfer.matchCount(viewModel.selectedID) : 0

    title: qsTr("Import CSV")
    subtitle: transfer.summary

    onAboutToShow: pathField.focus = true
    onClosed: transfer.cancel()

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
            placeholderText: qsTr("Path of the file, or drop it here")
            width: parent.width - readButton.width - chooseButton.width - 2 * Theme.space8
            onAccepted: readButton.activate()

            DropArea {
                anchors.fill: parent
                onDropped: drop => {
                    if (!drop.hasUrls)
                        return
                    pathField.text = drop.urls[0]
                    sheet.transfer.read(pathField.text)
                }
            }
        }

        OVSecondaryButton {
            id: chooseButton
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Choose…")
            onClicked: sheet.transfer.choose()
        }

        OVSecondaryButton {
            id: readButton
            anchors.verticalCenter: parent.verticalCenter
            enabled: pathField.text !== ""
            text: qsTr("Read")
            onClicked: sheet.transfer.read(pathField.text)
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

    Row {
        spacing: Theme.space12
        visible: sheet.transfer.isBusy
        width: parent.width

        OVProgressBar {
            anchors.verticalCenter: parent.verticalCenter
            value: sheet.transfer.progress
            width: parent.width - cancelButton.width - Theme.space12
        }

        OVSecondaryButton {
            id: cancelButton
            text: qsTr("Cancel")
            onClicked: sheet.transfer.cancel()
        }
    }

    Column {
        spacing: Theme.space4
        visible: sheet.transfer.isRead
        width: parent.width

        Repeater {
            model: sheet.transfer.columns

            Item {
                id: line

                required property int column
                required property string name
                required property string type
                required property string typeLabel
                required property string sample

                height: Math.max(texts.height, Theme.buttonHeight) + Theme.space4
                width: parent.width

                OVLabelPair {
                    id: texts
                    anchors.verticalCenter: parent.verticalCenter
                    detail: line.sample
                    title: line.name
                    width: parent.width - typeButton.width - Theme.space12
                }

                OVMenuButton {
                    id: typeButton
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: line.typeLabel
                    Accessible.name: qsTr("Type of %1: %2").arg(line.name).arg(line.typeLabel)

                    menu: ChoiceMenu {
                        choices: sheet.viewModel.propertyTypes
                        current: line.type
                        onPicked: raw => sheet.transfer.setType(line.column, raw)
                    }
                }
            }
        }
    }

    footer: Flow {
        layoutDirection: Qt.RightToLeft
        spacing: Theme.space8
        visible: sheet.transfer.isRead
        width: parent?.width ?? 0

        OVPrimaryButton {
            text: qsTr("Make a new database")
            onClicked: sheet.transfer.createDatabase()
        }

        OVSecondaryButton {
            text: qsTr("Add to “%1” (%2 columns match)").arg(DisplayText.shown(sheet.viewModel.name)).arg(sheet.matches)
            visible: sheet.matches > 0
            width: Math.min(implicitWidth, parent.width)
            onClicked: sheet.transfer.addTo(sheet.viewModel.selectedID)
        }
    }
}
