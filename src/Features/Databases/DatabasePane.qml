pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem
import Orvel.Session

/// The open database: its header, the tabs of its views, the settings of the current one, and its records.
FocusScope {
    id: root

    required property DatabasesViewModel viewModel
    required property bool active
    property bool railShown: true
    property bool settingsShown: false

    signal railRequested()
    signal deleteRequested()
    signal importRequested()
    signal exportRequested(viewOnly: bool)

    function editName() {
        header.editName()
    }

    function focusRecords() {
        content.forceActiveFocus(Qt.TabFocusReason)
    }

    RecordsViewModel {
        id: recordsModel
        active: root.active
        session: Orvel
        tableID: root.viewModel.selectedID
        viewID: root.viewModel.viewID
        onPropertyEditRequested: propertyID => editSheet.edit(propertyID)
    }

    ViewSettingsViewModel {
        id: settings
        active: root.active
        session: Orvel
        tableID: root.viewModel.selectedID
        viewID: root.viewModel.viewID
    }

    DatabaseHeader {
        id: header
        railShown: root.railShown
        viewModel: root.viewModel
        width: parent.width
        onDeleteRequested: root.deleteRequested()
        onExportRequested: viewOnly => root.exportRequested(viewOnly)
        onImportRequested: root.importRequested()
        onRailRequested: root.railRequested()
    }

    DatabaseTabs {
        id: tabs
        anchors.top: header.bottom
        anchors.topMargin: Theme.space12
        ruleCount: settings.ruleCount
        settingsShown: root.settingsShown
        viewModel: root.viewModel
        width: parent.width
        onPropertyRequested: propertySheet.open()
        onRenameRequested: (viewID, name) => renameDialog.ask(viewID, name)
        onSettingsToggled: root.settingsShown = !root.settingsShown
    }

    OVText {
        id: counts
        anchors.top: tabs.bottom
        anchors.topMargin: Theme.space12
        color: Theme.ovInkSecondary
        role: OVText.Caption
        text: recordsModel.countText
        width: parent.width
    }

    Flickable {
        id: panel
        anchors.top: counts.bottom
        anchors.topMargin: root.settingsShown ? Theme.space8 : 0
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: settingsPanel.implicitHeight
        height: root.settingsShown ? Math.min(contentHeight, Math.round((root.height - y) * 0.6)) : 0
        visible: root.settingsShown
        width: parent.width
        T.ScrollBar.vertical: OVScrollBar { }

        ViewSettingsPanel {
            id: settingsPanel
            settings: settings
            width: panel.width
        }
    }

    DatabaseViewContent {
        id: content
        anchors.bottom: footnote.top
        anchors.bottomMargin: Theme.space8
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: panel.bottom
        anchors.topMargin: Theme.space8
        focus: true
        records: recordsModel
    }

    OVText {
        id: footnote
        anchors.bottom: parent.bottom
        role: OVText.Caption
        text: root.viewModel.footnote
        width: parent.width
    }

    NewPropertySheet {
        id: propertySheet
        viewModel: root.viewModel
    }

    PropertySheet {
        id: editSheet
        viewModel: root.viewModel
    }

    OVDialog {
        id: renameDialog

        property var viewID

        function ask(id: var, name: string) {
            viewID = id
            nameField.text = name
            open()
            nameField.selectAll()
        }

        acceptEnabled: root.viewModel.isName(nameField.text)
        acceptText: qsTr("Rename")
        rejectText: qsTr("Cancel")
        title: qsTr("Rename view")
        onAccepted: root.viewModel.renameView(viewID, nameField.text)

        OVTextField {
            id: nameField
            focus: true
            width: parent.width
            Accessible.name: qsTr("Name")
        }
    }
}
