import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// A line of the sidebar's list: the row, or the field in which a folder is named.
FocusScope {
    id: root

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
    signal menuRequested(Item from, real x, real y)

    implicitHeight: gap + (isEditing ? editor.height : row.implicitHeight)

    SidebarRow {
        id: row

        collapsed: root.isCollapsed
        depth: root.depth
        detail: root.detail
        emoji: root.emoji
        focus: !root.isEditing
        foldable: root.isFolder
        hasMenu: root.isFolder || root.isPage
        chosen: root.destination !== "" && root.destination === root.sidebar.selection
        showsIcon: root.sidebar.showsIcons
        symbol: root.symbol
        text: root.title
        visible: !root.isEditing
        width: root.width
        y: root.gap
        onClicked: root.sidebar.activate(root.index)
        onMenuRequested: (from, x, y) => root.menuRequested(from, x, y)
        onPressed: root.pressed()
    }

    Loader {
        id: editor

        active: root.isEditing
        focus: root.isEditing
        width: root.width
        y: root.gap
        onLoaded: {
            const field = item as SidebarNameField
            field.symbol = root.sidebar.showsIcons ? "folder" : ""
            field.begin(root.isFolder ? root.sidebar.renameText : root.sidebar.folderName)
        }

        sourceComponent: SidebarNameField {
            placeholderText: qsTr("Folder name")
        }
    }

    Connections {
        function onCancelled() {
            if (root.isFolder)
                root.sidebar.cancelRename()
            else
                root.sidebar.cancelFolder()
        }

        function onCommitted() {
            if (root.isFolder)
                root.sidebar.commitRename()
            else
                root.sidebar.commitFolder()
        }

        function onEdited(text: string) {
            if (root.isFolder)
                root.sidebar.renameText = text
            else
                root.sidebar.folderName = text
        }

        target: editor.item
    }
}
