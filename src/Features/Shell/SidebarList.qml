pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Qt.labs.qmlmodels
import Orvel.DesignSystem
import Orvel.Shell

/// The scrolling part of the sidebar. Tab reaches it as a whole; within it the arrows go from row to row.
Item {
    id: root

    required property SidebarViewModel sidebar

    function goTo(row: int) {
        list.currentIndex = row
        list.positionViewAtIndex(row, ListView.Contain)
        list.currentItem?.forceActiveFocus(Qt.TabFocusReason)
        // The view has given the item its focus already, without the reason.
        if (Window.activeFocusItem)
            Window.activeFocusItem.focusReason = Qt.TabFocusReason
    }

    function openMenu() {
        const entry = list.currentItem as SidebarEntry
        if (entry)
            menus.open(entry, entry, Theme.space24, entry.height)
    }

    // Wider than the list, so that the ring around a row is whole.
    clip: true

    SidebarMenus {
        id: menus

        sidebar: root.sidebar
    }

    ListView {
        id: list

        activeFocusOnTab: true
        anchors.fill: parent
        anchors.leftMargin: Theme.space12
        anchors.rightMargin: Theme.space12
        bottomMargin: Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: -1
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.sidebar.rows
        spacing: Theme.lineWidth
        topMargin: Theme.space4
        Accessible.name: qsTr("Pages and places")
        Accessible.role: Accessible.List
        T.ScrollBar.vertical: scrollBar
        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0)
                root.goTo(root.sidebar.selectedRow())
        }

        Keys.onPressed: event => {
            event.accepted = true
            switch (event.key) {
            case Qt.Key_Up: return root.goTo(root.sidebar.neighbour(currentIndex, -1))
            case Qt.Key_Down: return root.goTo(root.sidebar.neighbour(currentIndex, 1))
            case Qt.Key_Home: return root.goTo(root.sidebar.neighbour(-1, 1))
            case Qt.Key_End: return root.goTo(root.sidebar.neighbour(count, -1))
            case Qt.Key_Right: return root.goTo(root.sidebar.moveIn(currentIndex))
            case Qt.Key_Left: return root.goTo(root.sidebar.moveOut(currentIndex))
            case Qt.Key_F2: return root.sidebar.beginRename(currentIndex)
            case Qt.Key_Delete: return root.sidebar.remove(currentIndex)
            case Qt.Key_Menu: return root.openMenu()
            case Qt.Key_F10:
                if (event.modifiers & Qt.ShiftModifier)
                    return root.openMenu()
            }
            event.accepted = false
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
                required property string section

                actionText: section === "pages" ? qsTr("New page") : ""
                foldable: true
                width: list.width
                onActionTriggered: root.sidebar.newPage()
                onClicked: root.sidebar.activate(index)
                onPressed: list.currentIndex = index
            }
        }

        DelegateChoice {
            roleValue: "hint"

            SidebarHint {
                width: list.width
                onClicked: root.sidebar.activate(index)
                onPressed: list.currentIndex = index
            }
        }

        DelegateChoice {
            SidebarEntry {
                sidebar: root.sidebar
                width: list.width
                onMenuRequested: (from, x, y) => menus.open(this, from, x, y)
                onPressed: list.currentIndex = index
            }
        }
    }
}
