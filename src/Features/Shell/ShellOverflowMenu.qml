pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The menu of places without a button of their own. It may hold thousands of pages, so it is a list that makes only
/// the lines in sight.
OVPopup {
    id: root

    /// Whether it begins with the modules that have no tab.
    property alias listsModules: overflow.listsModules

    function choose(row: int) {
        if (overflow.activate(row))
            close()
    }

    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    focus: true
    implicitHeight: Math.min(list.contentHeight + topPadding + bottomPadding, 2 * Theme.sidebarWidth)
    implicitWidth: Theme.sidebarWidth + Theme.space24
    modal: false
    padding: Theme.space4
    onAboutToShow: list.currentIndex = -1

    OverflowMenuViewModel {
        id: overflow

        active: root.visible
        session: Orvel
    }

    readonly property ListFocus keys: ListFocus {
        stopsAt: row => overflow.isPlace(row)
        view: list
    }

    contentItem: ListView {
        id: list

        boundsBehavior: Flickable.StopAtBounds
        clip: true
        currentIndex: -1
        focus: true
        highlightMoveDuration: 0
        keyNavigationEnabled: false
        model: overflow.rows
        Accessible.name: qsTr("Places")
        Accessible.role: Accessible.PopupMenu
        T.ScrollBar.vertical: OVScrollBar { }

        Keys.onPressed: event => {
            const row = root.keys.target(event.key)
            event.accepted = row >= 0
            if (row >= 0)
                currentIndex = row
        }
        Keys.onReturnPressed: root.choose(currentIndex)
        Keys.onEnterPressed: root.choose(currentIndex)
        Keys.onSpacePressed: root.choose(currentIndex)

        delegate: OverflowRow {
            width: ListView.view.width
            onClicked: root.choose(index)
        }
    }
}
