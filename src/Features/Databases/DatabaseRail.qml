pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem

/// All databases: a list that is one stop for Tab, in which the arrows open one after the other.
FocusScope {
    id: root

    required property DatabasesViewModel viewModel
    /// Whether the rail can be hidden.
    property bool hideable: true
    readonly property bool isEmpty: list.count === 0

    signal hideRequested()
    signal picked(var tableID)
    signal created()
    signal enterRequested()
    signal importRequested()

    function focusList() {
        list.forceActiveFocus(Qt.TabFocusReason)
    }

    /// @param templateID empty for a database of the ordinary kind
    function create(templateID: string) {
        if (templateID === "")
            viewModel.newDatabase()
        else
            viewModel.newFromTemplate(templateID)
        created()
    }

    function openNewMenu() {
        const byKeys = newButton.visualFocus
        newMenu.openBeside(newButton, 0, -Theme.space4, newButton.height + Theme.space4)
        newMenu.currentIndex = byKeys ? 0 : -1
    }

    OVText {
        id: heading
        anchors.verticalCenter: actions.verticalCenter
        role: OVText.Section
        text: qsTr("DATABASES")
        width: actions.x - Theme.space8
        Accessible.role: Accessible.Heading
    }

    Row {
        id: actions
        anchors.right: parent.right
        spacing: Theme.space4

        OVIconButton {
            symbol: "sidebar.left"
            text: qsTr("Hide the list")
            visible: root.hideable
            onClicked: root.hideRequested()
        }

        OVIconButton {
            id: newButton
            symbol: "plus"
            text: qsTr("New database")
            OVAccessible.role: Accessible.ButtonMenu
            Keys.onDownPressed: root.openNewMenu()
            onClicked: root.openNewMenu()

            OVMenu {
                id: newMenu
                name: qsTr("New database")

                OVMenuItem {
                    symbol: "plus"
                    text: qsTr("New database")
                    onTriggered: root.create("")
                }

                OVMenuItem {
                    symbol: "square.and.arrow.down"
                    text: qsTr("Import CSV…")
                    onTriggered: root.importRequested()
                }

                OVMenu {
                    id: templates
                    title: qsTr("From a template…")

                    Instantiator {
                        model: root.viewModel.templates

                        OVMenuItem {
                            required property var modelData

                            text: modelData.label
                            onTriggered: root.create(modelData.raw)
                        }

                        onObjectAdded: (index, object) => templates.insertItem(index, object as OVMenuItem)
                        onObjectRemoved: (index, object) => templates.removeItem(object as OVMenuItem)
                    }
                }
            }
        }
    }

    ListView {
        id: list

        property bool focusByKeys: false

        /// How many rows further down a key leads; 0 for another key.
        function step(key: int): int {
            switch (key) {
            case Qt.Key_Up: return -1
            case Qt.Key_Down: return 1
            case Qt.Key_Home: return -count
            case Qt.Key_End: return count
            default: return 0
            }
        }

        activeFocusOnTab: count > 0 || activeFocus
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: -Theme.space8
        anchors.right: parent.right
        anchors.rightMargin: -Theme.space8
        anchors.top: actions.bottom
        anchors.topMargin: Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        currentIndex: root.viewModel.selectedRow
        focus: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.viewModel.databases
        spacing: 2
        Accessible.name: qsTr("Databases")
        Accessible.role: Accessible.List
        T.ScrollBar.vertical: OVScrollBar { }

        Keys.onPressed: event => {
            const rows = step(event.key)
            if (rows !== 0)
                root.viewModel.selectBy(rows)
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                root.enterRequested()
            else if ((event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace) && root.viewModel.hasSelection)
                root.viewModel.remove(root.viewModel.selectedID)
            else
                return currentItem ? (currentItem as DatabaseRailRow).handleKey(event) : event.accepted = false
            event.accepted = true
        }
        onActiveFocusChanged: {
            focusByKeys = true
            // An empty list would hold the keyboard where nobody sees it.
            if (activeFocus && count === 0)
                newButton.forceActiveFocus(Qt.TabFocusReason)
        }
        onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

        delegate: DatabaseRailRow {
            ringShown: list.activeFocus && list.focusByKeys
            width: ListView.view.width
            onDeleteRequested: root.viewModel.remove(tableID)
            onPicked: {
                list.forceActiveFocus(Qt.MouseFocusReason)
                list.focusByKeys = false
                root.picked(tableID)
            }
        }
    }

    OVText {
        anchors.top: list.top
        anchors.topMargin: Theme.space4
        color: Theme.ovInkSecondary
        role: OVText.Dense
        text: qsTr("No databases yet.")
        visible: list.count === 0
        width: parent.width
        wrapMode: Text.Wrap
    }
}
