pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The form for a new property.
OVSheet {
    id: sheet

    required property DatabasesViewModel viewModel
    readonly property string type: viewModel.propertyTypes[typeBox.currentIndex].raw

    function add() {
        if (!viewModel.isName(nameField.text))
            return
        viewModel.addProperty(nameField.text, type, optionsField.text)
        close()
    }

    maximumWidth: Theme.dialogWidth
    title: qsTr("New property")

    onAboutToShow: {
        nameField.text = ""
        optionsField.text = ""
        typeBox.currentIndex = 0
        nameField.focus = true
    }

    component Label: OVText {
        role: OVText.Section
        width: parent.width
    }

    Column {
        spacing: Theme.space8
        width: parent.width

        Label { text: qsTr("NAME") }

        OVTextField {
            id: nameField
            focus: true
            placeholderText: qsTr("Property name")
            width: parent.width
            Accessible.name: qsTr("Name")
            onAccepted: sheet.add()
        }
    }

    Column {
        spacing: Theme.space8
        width: parent.width

        Label { text: qsTr("TYPE") }

        OVComboBox {
            id: typeBox
            model: sheet.viewModel.propertyTypes.map(choice => choice.label)
            width: parent.width
            Accessible.name: qsTr("Type")
        }
    }

    Column {
        spacing: Theme.space8
        visible: sheet.viewModel.supportsOptions(sheet.type)
        width: parent.width

        Label { text: qsTr("OPTIONS (COMMA SEPARATED)") }

        OVTextField {
            id: optionsField
            placeholderText: qsTr("Low, Medium, High")
            width: parent.width
            Accessible.name: qsTr("Options, separated by commas")
            onAccepted: sheet.add()
        }
    }

    footer: OVPrimaryButton {
        anchors.right: parent?.right
        enabled: sheet.viewModel.isName(nameField.text)
        text: qsTr("Add property")
        onClicked: sheet.add()
    }
}
