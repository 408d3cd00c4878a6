pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Qt.labs.qmlmodels
import Orvel.DesignSystem
import Orvel.Shell

/// The scrolling part of the sidebar. Tab reaches it as a whole; within it the arrows go from row to row.
FocusScope {
    id: root

    required property NavigationViewModel navigation
    required property SidebarViewModel sidebar
    property alias list: list
    property SidebarMenus menus: null
    readonly property ListFocus keys: ListFocus {
        stopsAt: row => root.sidebar.isStop(row)
        view: list
    }

    /// Follows the current row, along with the focus if that is in the list.
    function follow() {
        if (list.activeFocus && !sidebar.isNaming)
            keys.focus(sidebar.currentRow, keys.ringShown ? Qt.TabFocusReason : Qt.MouseFocusReason)
        else
            list.currentIndex = sidebar.currentRow
    }

    function go(row: int) {
        keys.focus(row)
        sidebar.currentRow = list.currentIndex
    }

    function press(row: int) {
        keys.ringShown = false
        sidebar.currentRow = list.currentIndex = row
    }

    /// Brings a row into view, with room for its focus ring.
    function reveal(row: int) {
        // Before the list has its height, any row but the first would seem to be out of view.
        if (list.height <= 0)
            return
        list.forceLayout()
        list.lookWhetherFilled()
        // While the view makes its rows, it would scroll to where it guesses that this one will be.
        if (!list.filled && !list.itemAtIndex(row))
            return
        list.positionViewAtIndex(row, ListView.Contain)
        const item = list.itemAtIndex(row)
        if (!item)
            return
        const margin = Theme.space4
        const lowest = list.originY + list.contentHeight + list.bottomMargin - list.height
        if (item.y - margin < list.contentY)
            list.contentY = Math.max(list.originY - list.topMargin, item.y - margin)
        else if (item.y + item.height + margin > list.contentY + list.height)
            list.contentY = Math.min(lowest, item.y + item.height + margin - list.height)
    }

    /// Shows the beginning, as far as the current row leaves it: a window gets its size in several steps, its rows
    /// are made one by one, and those that come and go out of sight may move the view.
    function settle() {
        list.lookWhetherFilled()
        if (list.scrolledByUser || list.activeFocus)
            return
        list.positionViewAtBeginning()
        list.contentY = list.originY - list.topMargin
        reveal(sidebar.currentRow)
    }

    /// Opens the menu of an entry that has one, at a point of an item. The menus are made when one is first asked for.
    function openMenu(entry: var, from: Item, x: real, y: real) {
        if (!menus)
            menus = menusComponent.createObject(root) as SidebarMenus
        menus.open(entry, from, x, y)
    }

    function openCurrentMenu() {
        const entry = list.currentItem as SidebarEntry
        if (entry)
            openMenu(entry, entry, Theme.space24, entry.height)
    }

    // Wider than the list, so that the ring around a row is whole.
    clip: true

    Component {
        id: menusComponent

        SidebarMenus {
            sidebar: root.sidebar
        }
    }

    Connections {
        target: root.sidebar

        function onLaidOut() {
            list.laidOut = true
            root.follow()
            Qt.callLater(root.settle)
        }
        function onSelectionRevealed() {
            root.follow()
            root.reveal(root.sidebar.currentRow)
        }
    }

    ListView {
        id: list

        property bool scrolledByUser: false
        /// Whether the view model has told where the current row is.
        property bool laidOut: false
        /// Whether the rows in sight have been made once.
        property bool filled: false

        function lookWhetherFilled() {
            filled = filled || height > 0 && (itemAtIndex(count - 1) ?? itemAt(0, contentY + height - Theme.rowHeight)) !== null
        }

        anchors.fill: parent
        anchors.leftMargin: Theme.space12
        anchors.rightMargin: Theme.space12
        bottomMargin: Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: -1
        focus: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.sidebar.rows
        spacing: Theme.lineWidth
        topMargin: Theme.space4
        Accessible.name: qsTr("Pages and places")
        Accessible.role: Accessible.List
        T.ScrollBar.vertical: scrollBar
        onContentHeightChanged: if (laidOut && !filled) Qt.callLater(root.settle)
        onHeightChanged: Qt.callLater(root.settle)
        onMovementStarted: scrolledByUser = true

        Keys.enabled: !root.sidebar.isNaming
        Keys.onPressed: event => {
            event.accepted = true
            switch (event.key) {
            case Qt.Key_Right: return root.go(root.sidebar.moveIn(currentIndex))
            case Qt.Key_Left: return root.go(root.sidebar.moveOut(currentIndex))
            case Qt.Key_F2: return root.sidebar.beginRename(currentIndex)
            case Qt.Key_Delete: return root.sidebar.remove(currentIndex)
            case Qt.Key_Menu: return root.openCurrentMenu()
            case Qt.Key_F10:
                if (event.modifiers & Qt.ShiftModifier)
                    return root.openCurrentMenu()
            }
            event.accepted = root.keys.press(event.key)
            root.sidebar.currentRow = currentIndex
        }

        delegate: chooser
    }

    // Lines where the list goes on behind what is shown above and below it.
    Rectangle {
        color: Theme.ovBorder
        height: Theme.lineWidth
        opacity: list.atYBeginning ? 0 : 1
        width: parent.width
    }

    Rectangle {
        anchors.bottom: parent.bottom
        color: Theme.ovBorder
        height: Theme.lineWidth
        opacity: list.atYEnd ? 0 : 1
        width: parent.width
    }

    OVScrollBar {
        id: scrollBar

        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.top: parent.top
        onPressedChanged: list.scrolledByUser = true
    }

    DelegateChooser {
        id: chooser

        role: "kind"

        DelegateChoice {
            roleValue: "label"

            SidebarSection {
                width: list.width
            }
        }

        DelegateChoice {
            roleValue: "section"

            SidebarSection {
                required property string name

                actionText: name === "pages" ? qsTr("New page") : ""
                foldable: true
                width: list.width
                onActionTriggered: root.sidebar.newPage()
                onClicked: root.sidebar.activate(index)
                onPressed: root.press(index)
                onRingShown: root.reveal(index)
            }
        }

        DelegateChoice {
            roleValue: "hint"

            SidebarHint {
                width: list.width
                onClicked: root.sidebar.activate(index)
                onPressed: root.press(index)
                onRingShown: root.reveal(index)
            }
        }

        DelegateChoice {
            SidebarEntry {
                navigation: root.navigation
                sidebar: root.sidebar
                width: list.width
                // The wash of the next row would lie over the ring.
                z: activeFocus ? 1 : 0
                onMenuRequested: (from, x, y) => root.openMenu(this, from, x, y)
                onPressed: root.press(index)
                onRingShown: root.reveal(index)
            }
        }
    }
}
