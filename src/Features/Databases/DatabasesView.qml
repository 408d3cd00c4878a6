import QtQuick
import Orvel.Databases
import Orvel.DesignSystem
import Orvel.Session

/// The databases: the rail of all of them beside the open one. In a narrow window the two take turns.
FocusScope {
    id: root

    readonly property bool isNarrow: width < 720 * Theme.fontScale
    readonly property int padding: isNarrow ? Theme.screenPaddingNarrow : Theme.screenPadding
    /// Whether the user wants the rail, as far as there is room for both.
    property bool railWanted: true
    property bool railOverPane: false
    readonly property bool showsRail: !viewModel.hasSelection || (isNarrow ? railOverPane : railWanted)
    readonly property alias viewModel: databases

    function toggleRail() {
        if (isNarrow)
            railOverPane = !railOverPane
        else
            railWanted = !railWanted
    }

    function open(tableID) {
        Qt.inputMethod.commit() // qmllint disable
        databases.select(tableID)
        railOverPane = false
    }

    /// The rail takes the keyboard when what had it is gone.
    function removeOpen() {
        databases.remove(databases.selectedID)
        rail.focusList()
    }

    // What is hidden would keep the keyboard.
    onShowsRailChanged: {
        if (rail.activeFocus && !showsRail)
            pane.forceActiveFocus(Qt.OtherFocusReason)
    }
    Keys.onEscapePressed: event => {
        event.accepted = isNarrow && railOverPane
        if (event.accepted)
            railOverPane = false
    }

    DatabasesViewModel {
        id: databases
        active: root.visible
        session: Orvel
        // The arrows of the rail go on to the next database, so it stays when one is open.
        onSelectionChanged: root.railOverPane = root.isNarrow && rail.activeFocus
    }

    CsvTransfer {
        id: transfer
        session: Orvel
        onFinished: tableID => root.open(tableID)
    }

    CsvImportSheet {
        id: importSheet
        transfer: transfer
        viewModel: databases
    }

    CsvExportSheet {
        transfer: transfer
    }

    FocusScope {
        anchors.fill: parent
        anchors.margins: root.padding
        anchors.topMargin: root.isNarrow ? Theme.space16 : Theme.space24
        focus: true

        DatabaseRail {
            id: rail
            focus: true
            height: parent.height
            hideable: databases.hasSelection
            viewModel: databases
            visible: root.showsRail
            width: root.isNarrow && databases.hasSelection
                   ? parent.width : Math.round(Math.min(200 * Theme.fontScale, root.width * 0.34))
            onCreated: {
                root.railOverPane = false
                pane.editName()
            }
            onEnterRequested: {
                root.railOverPane = false
                if (databases.hasSelection)
                    pane.focusRecords()
            }
            onHideRequested: root.toggleRail()
            onImportRequested: importSheet.open()
            onPicked: tableID => root.open(tableID)
        }

        OVEmptyState {
            actionSymbol: "plus"
            actionText: rail.isEmpty ? qsTr("New database") : ""
            anchors.verticalCenter: parent.verticalCenter
            anchors.verticalCenterOffset: -Theme.space48
            message: qsTr("Pick one on the left, or create a database  -  table, board, list and gallery views all share the same records.")
            symbol: "cylinder.split.1x2"
            title: qsTr("No database selected")
            visible: !databases.hasSelection
            width: parent.width - x
            x: rail.width + Theme.space24
            onActionTriggered: rail.create("")
        }

        DatabasePane {
            id: pane
            // What is added in pieces is shown when all of it is there.
            active: root.visible && visible && !transfer.isBusy
            height: parent.height
            railShown: rail.visible
            viewModel: databases
            visible: databases.hasSelection && !(root.isNarrow && root.railOverPane)
            width: parent.width - x
            x: rail.visible && !root.isNarrow ? rail.width + Theme.space24 : 0
            onDeleteRequested: root.removeOpen()
            onExportRequested: viewOnly => {
                if (viewOnly)
                    transfer.saveView(databases.selectedID, databases.viewID)
                else
                    transfer.saveAll(databases.selectedID)
            }
            onImportRequested: importSheet.open()
            onRailRequested: root.toggleRail()
        }
    }
}
