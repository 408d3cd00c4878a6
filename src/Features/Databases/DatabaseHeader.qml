import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// The icon, the name and the description of the open database, and what can be done with it as a whole.
Item {
    id: root

    required property DatabasesViewModel viewModel
    property bool railShown: true

    signal railRequested()
    signal deleteRequested()
    signal importRequested()
    /// @param viewOnly whether only the records of the current view are written
    signal exportRequested(viewOnly: bool)

    function editName() {
        nameField.forceActiveFocus(Qt.OtherFocusReason)
        nameField.selectAll()
    }

    implicitHeight: texts.height

    OVIconButton {
        id: railButton
        anchors.verticalCenter: icon.verticalCenter
        symbol: "sidebar.left"
        text: qsTr("Show the list")
        visible: !root.railShown
        onClicked: root.railRequested()
    }

    DatabaseIconPicker {
        id: icon
        anchors.left: railButton.visible ? railButton.right : parent.left
        anchors.leftMargin: railButton.visible ? Theme.space4 : -Theme.space4
        viewModel: root.viewModel
    }

    Column {
        id: texts
        anchors.left: icon.right
        anchors.leftMargin: Theme.space8
        anchors.right: actions.left
        anchors.rightMargin: Theme.space8

        StoredField {
            id: nameField
            font.letterSpacing: -0.4 * Theme.fontScale
            font.pixelSize: Theme.sizeScreenTitle
            font.weight: Font.DemiBold
            placeholderText: qsTr("Database name")
            stored: root.viewModel.name
            width: parent.width
            onTextEdited: root.viewModel.setName(text)
        }

        StoredField {
            font.pixelSize: Theme.sizeBody
            ink: Theme.ovInkSecondary
            placeholderText: qsTr("Add a description…")
            stored: root.viewModel.details
            width: parent.width
            onTextEdited: root.viewModel.setDetails(text)
        }
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.verticalCenter: icon.verticalCenter
        spacing: Theme.space4

        OVIconButton {
            color: root.viewModel.isStarred ? Theme.ovWarning : Theme.ovInkSecondary
            filled: root.viewModel.isStarred
            symbol: "star"
            text: root.viewModel.isStarred ? qsTr("Remove star") : qsTr("Add star")
            onClicked: root.viewModel.toggleStar()
        }

        OVIconButton {
            id: fileButton
            symbol: "square.and.arrow.up"
            text: qsTr("Import and export")
            OVAccessible.role: Accessible.ButtonMenu
            Keys.onDownPressed: clicked()
            onClicked: {
                const byKeys = visualFocus
                fileMenu.openBeside(fileButton, 0, -Theme.space4, height + Theme.space4)
                fileMenu.currentIndex = byKeys ? 0 : -1
            }

            OVMenu {
                id: fileMenu
                name: fileButton.text

                OVMenuItem {
                    symbol: "square.and.arrow.up"
                    text: qsTr("Export this view as CSV…")
                    onTriggered: root.exportRequested(true)
                }

                OVMenuItem {
                    symbol: "square.and.arrow.up"
                    text: qsTr("Export all records as CSV…")
                    onTriggered: root.exportRequested(false)
                }

                OVMenuSeparator { }

                OVMenuItem {
                    symbol: "square.and.arrow.down"
                    text: qsTr("Import CSV…")
                    onTriggered: root.importRequested()
                }
            }
        }

        OVIconButton {
            symbol: "trash"
            text: qsTr("Delete database")
            onClicked: root.deleteRequested()
        }
    }
}
