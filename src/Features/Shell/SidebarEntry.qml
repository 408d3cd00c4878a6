pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// A line of the sidebar's list: the row, or the field in which a folder is named.
FocusScope {
    id: root

    required property NavigationViewModel navigation
    required property SidebarViewModel sidebar
    required property int index
    required property string kind
    required property var recordID
    required property string title
    required property string symbol
    required property string emoji
    required property string destination
    required property string detail
    required property int depth
    required property bool startsGroup
    required property bool isCollapsed
    required property bool isEditing

    readonly property bool isFolder: kind === "folder"
    readonly property bool isPage: kind === "page"
    readonly property real gap: startsGroup ? Theme.space8 : 0

    /// The row was clicked, so that the keyboard goes on from it.
    signal pressed
    /// The row has the focus by keys.
    signal ringShown
    signal menuRequested(Item from, real x, real y)

    implicitHeight: gap + Theme.rowHeight

    SidebarRow {
        chosen: root.destination !== "" && root.destination === root.navigation.selection
        collapsed: root.isCollapsed
        depth: root.depth
        detail: root.detail
        emoji: root.emoji
        focus: !root.isEditing
        foldable: root.isFolder
        hasMenu: root.isFolder || root.isPage
        showsIcon: Orvel.settings.sidebarShowsIcons
        symbol: root.symbol
        tabStop: root.ListView.isCurrentItem || activeFocus
        text: root.title
        visible: !root.isEditing
        width: root.width
        y: root.gap
        onClicked: root.sidebar.activate(root.index)
        onMenuRequested: (from, x, y) => root.menuRequested(from, x, y)
        onPressed: root.pressed()
        onVisualFocusChanged: if (visualFocus) root.ringShown()
    }

    OVLazyLoader {
        active: root.isEditing
        focus: root.isEditing
        height: Theme.rowHeight
        width: root.width
        y: root.gap

        sourceComponent: SidebarNameField {
            sidebar: root.sidebar
        }
    }
}
