import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session
import Orvel.Shell

/// The menus of the sidebar's rows, one for all rows of a kind.
Item {
    id: root

    required property SidebarViewModel sidebar

    property var folderID

    /// Opens the menu of an entry that has one, at a point of an item.
    function open(entry: var, from: Item, x: real, y: real) {
        if (entry.isPage) {
            pageActions.open(entry.recordID)
            pageMenu.popup(from, x, y)
        } else if (entry.isFolder) {
            folderID = entry.recordID
            folderMenu.popup(from, x, y)
        }
    }

    PageMenuViewModel {
        id: pageActions

        session: Orvel
    }

    OVMenu {
        id: pageMenu

        OVMenuItem {
            symbol: pageActions.favoriteSymbol
            text: pageActions.favoriteTitle
            onTriggered: pageActions.toggleFavorite()
        }

        OVMenuItem {
            symbol: "doc.on.doc"
            text: qsTr("Duplicate")
            onTriggered: pageActions.duplicate()
        }

        FolderChoiceMenu {
            actions: pageActions
        }

        OVMenuSeparator { }

        OVMenuItem {
            destructive: true
            shortcutText: qsTr("Del")
            symbol: "trash"
            text: qsTr("Delete")
            onTriggered: pageActions.remove()
        }
    }

    OVMenu {
        id: folderMenu

        OVMenuItem {
            shortcutText: qsTr("F2")
            symbol: "pencil"
            text: qsTr("Rename")
            onTriggered: root.sidebar.beginRename(root.sidebar.folderRow(root.folderID))
        }

        OVMenuSeparator { }

        OVMenuItem {
            destructive: true
            shortcutText: qsTr("Del")
            symbol: "trash"
            text: qsTr("Delete folder")
            onTriggered: root.sidebar.remove(root.sidebar.folderRow(root.folderID))
        }
    }
}
