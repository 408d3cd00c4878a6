pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem
import Orvel.Session

/// The form that changes a property: its name, its type, and its options in their order.
OVSheet {
    id: sheet

    required property DatabasesViewModel viewModel

    function edit(propertyID: var) {
        if (form.load(viewModel.selectedID, propertyID))
            open()
    }

    function save() {
        if (!form.canApply)
            return
        form.addOptions(newOption.text)
        form.apply()
        close()
    }

    maximumWidth: Theme.dialogWidth
    title: qsTr("Edit property")

    onAboutToShow: {
        newOption.text = ""
        nameField.text = form.name
        nameField.focus = true
        nameField.selectAll()
    }

    PropertyFormViewModel {
        id: form
        session: Orvel
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
            onAccepted: sheet.save()
            onTextEdited: form.name = text
        }
    }

    Column {
        spacing: Theme.space8
        width: parent.width

        Label { text: qsTr("TYPE") }

        OVMenuButton {
            text: form.typeLabel
            width: parent.width
            Accessible.name: qsTr("Type: %1").arg(text)

            menu: ChoiceMenu {
                choices: sheet.viewModel.propertyTypes
                current: form.type
                onPicked: raw => form.type = raw
            }
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Caption
            text: qsTr("The values of the records stay as they are.")
            width: parent.width
            wrapMode: Text.Wrap
        }
    }

    Column {
        spacing: Theme.space8
        visible: form.hasOptions
        width: parent.width

        Label { text: qsTr("OPTIONS") }

        PropertyOptions {
            form: form
            width: parent.width
        }

        OVTextField {
            id: newOption
            placeholderText: qsTr("Add an option")
            symbol: "plus"
            width: parent.width
            onAccepted: {
                if (text === "")
                    return sheet.save()
                form.addOptions(text)
                clear()
            }
        }
    }

    footer: OVPrimaryButton {
        anchors.right: parent?.right
        enabled: form.canApply
        text: qsTr("Save")
        onClicked: sheet.save()
    }
}
