pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Projects

/// Where a project begins: with a template of the program, or with nothing but a name.
OVSheet {
    id: sheet

    required property ProjectsViewModel viewModel
    /// Whether a key opened it, so that the ring shows where the focus is.
    property bool byKeys: false

    function createBlank() {
        if (viewModel.createBlank())
            close()
    }

    title: qsTr("New project")
    onOpened: list.keys.focus(0, byKeys ? Qt.TabFocusReason : Qt.MouseFocusReason)

    footer: Item {
        height: Math.max(field.height, button.height)
        width: parent.width

        OVTextField {
            id: field
            anchors.verticalCenter: parent.verticalCenter
            placeholderText: qsTr("Name of a blank project")
            text: sheet.viewModel.blankName
            width: button.x - Theme.space8
            onAccepted: sheet.createBlank()
            onTextEdited: sheet.viewModel.blankName = text
        }

        OVPrimaryButton {
            id: button
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            enabled: sheet.viewModel.canCreateBlank
            text: qsTr("Create blank")
            onClicked: sheet.createBlank()
        }
    }

    // Room for the wash and the ring of the rows.
    Item {
        height: list.implicitHeight
        width: parent.width

        OVCardList {
            id: list
            height: implicitHeight
            model: sheet.viewModel.builtInTemplates
            rowHeight: Theme.fieldHeight + Theme.space24
            width: parent.width - 2 * x
            x: Theme.space8
            Accessible.name: qsTr("Templates")

            delegate: TemplateLineRow {
                onActivated: {
                    sheet.viewModel.create(templateID)
                    sheet.close()
                }
            }
        }
    }
}
