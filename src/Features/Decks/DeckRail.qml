pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Decks
import Orvel.DesignSystem

/// The decks: a search field and a list that is one stop for Tab, in which the arrows open one deck after the other.
FocusScope {
    id: root

    required property DecksViewModel decks

    signal newRequested(themeID: string)
    signal hideRequested()
    signal picked(deckID: var)
    signal editRequested()
    signal renameRequested()
    signal deleteRequested(deckID: var)

    function focusList() {
        list.forceActiveFocus(Qt.TabFocusReason)
    }

    OVText {
        id: title
        Accessible.role: Accessible.Heading
        role: OVText.ScreenTitle
        text: qsTr("Decks")
        width: actions.x - Theme.space8
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.verticalCenter: title.verticalCenter
        spacing: Theme.space4

        OVIconButton {
            symbol: "sidebar.left"
            text: qsTr("Hide the list")
            onClicked: root.hideRequested()
        }

        OVIconButton {
            id: add
            OVAccessible.role: Accessible.ButtonMenu
            symbol: "plus"
            text: qsTr("New deck")
            onClicked: themeMenu.openBeside(add, 0, -Theme.space4, height + Theme.space4)

            DeckThemeMenu {
                id: themeMenu
                themes: root.decks.themes
                onPicked: themeID => root.newRequested(themeID)
            }
        }
    }

    OVSearchField {
        id: search
        anchors.top: title.bottom
        anchors.topMargin: Theme.space16
        placeholderText: qsTr("Search decks")
        text: root.decks.query
        width: parent.width
        Keys.onDownPressed: root.focusList()
        onTextEdited: root.decks.query = text
    }

    ListView {
        id: list

        property bool focusByKeys: false
        readonly property bool visualFocus: activeFocus && focusByKeys

        /// How many rows further down a key leads; 0 for another key.
        function step(key: int): int {
            const page = Math.max(1, Math.floor(height / Math.max(1, contentHeight / Math.max(1, count))) - 1)
            switch (key) {
            case Qt.Key_Up: return -1
            case Qt.Key_Down: return 1
            case Qt.Key_PageUp: return -page
            case Qt.Key_PageDown: return page
            case Qt.Key_Home: return -count
            case Qt.Key_End: return count
            default: return 0
            }
        }

        Accessible.name: qsTr("Decks")
        Accessible.role: Accessible.List
        activeFocusOnTab: count > 0 || activeFocus
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: -Theme.space8
        anchors.right: parent.right
        anchors.rightMargin: -Theme.space8
        anchors.top: search.bottom
        anchors.topMargin: Theme.space12
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        currentIndex: root.decks.selectedRow
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.decks.rows
        spacing: 2
        T.ScrollBar.vertical: OVScrollBar { }

        Keys.onPressed: event => {
            const rows = step(event.key)
            if (rows !== 0)
                root.decks.selectBy(rows)
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                root.editRequested()
            else if (event.key === Qt.Key_F2)
                root.renameRequested()
            else if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace)
                root.deleteRequested(root.decks.deckID)
            else if (currentItem)
                return (currentItem as DeckRailRow).handleKey(event)
            event.accepted = true
        }
        onActiveFocusChanged: focusByKeys = true
        onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

        delegate: DeckRailRow {
            decks: root.decks
            ringShown: list.visualFocus
            width: ListView.view.width
            onDeleteRequested: root.deleteRequested(deckID)
            onPicked: {
                list.forceActiveFocus(Qt.MouseFocusReason)
                list.focusByKeys = false
                root.picked(deckID)
            }
            onRenameRequested: {
                root.picked(deckID)
                root.renameRequested()
            }
        }
    }

    OVText {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: list.top
        anchors.topMargin: Theme.space24
        color: Theme.ovInkSecondary
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("No deck matches.")
        visible: list.count === 0
        width: parent.width
        wrapMode: Text.Wrap
    }
}
