import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The menus of the sidebar's rows, made when they are first asked for.
Item {
    id: root

    required property SidebarViewModel sidebar

    property int row: -1

    /// Opens the menu of an entry that has one, at a point of an item.
    function open(entry: SidebarEntry, from: Item, x: real, y: real) {
        row = entry.index
        if (entry.isPage) {
            pageMenu.active = true
            pageActions.open(entry.recordID)
            pageMenu.item.popup(from, x, y)
        } else if (entry.isFolder) {
            folderMenu.active = true
            folderMenu.item.popup(from, x, y)
        }
    }

    PageMenuViewModel {
        id: pageActions

        store: Orvel.store
        ui: Orvel.ui
    }

    Loader {
        id: pageMenu

        active: false

        sourceComponent: OVMenu {
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
    }

    Loader {
        id: folderMenu

        active: false

        sourceComponent: OVMenu {
            OVMenuItem {
                shortcutText: qsTr("F2")
                symbol: "pencil"
                text: qsTr("Rename")
                onTriggered: root.sidebar.beginRename(root.row)
            }

            OVMenuSeparator { }

            OVMenuItem {
                destructive: true
                shortcutText: qsTr("Del")
                symbol: "trash"
                text: qsTr("Delete folder")
                onTriggered: root.sidebar.remove(root.row)
            }
        }
    }
}
