import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

GallerySection {
    id: section

    title: "Menus, dialogs and sheets"

    OVMenuBar {
        Layout.fillWidth: true

        OVMenu {
            title: "&File"
            OVMenuItem { shortcutText: "Ctrl N"; text: "New page" }
            OVMenuItem { shortcutText: "Ctrl Shift N"; text: "New note" }
        }

        OVMenu {
            title: "&View"
            OVMenuItem { shortcutText: "Ctrl Shift L"; text: "Cycle appearance" }
        }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space12

        OVMenuButton {
            menu: pageMenu
            symbol: "doc.text"
            text: "Page menu"
        }
        OVMenuButton { menu: pageMenu; plain: true; text: "In a row" }
        OVMenuButton { enabled: false; text: "Disabled" }
        OVSecondaryButton { text: "Dialog"; onClicked: dialog.open() }
        OVSecondaryButton { text: "Sheet"; onClicked: sheet.open() }
        OVSecondaryButton { text: "Toast"; onClicked: toast.show("Copied", "") }
        OVSecondaryButton { text: "Toast with an action"; onClicked: toast.show("Task deleted", "Undo") }
    }

    Flow {
        Layout.fillWidth: true
        spacing: Theme.space24

        Item {
            height: items.height + 2 * items.y
            width: items.width + 2 * items.x

            OVPopupSurface {
                anchors.fill: parent
            }

            Column {
                id: items

                width: Theme.menuWidth + Theme.space32
                x: Theme.space4
                y: Theme.space4

                OVMenuItem { shortcutText: "Ctrl D"; symbol: "doc.on.doc"; text: "Duplicate"; width: parent.width }
                OVMenuItem { highlighted: true; symbol: "star"; text: "Add to favorites"; width: parent.width }
                OVMenuItem { enabled: false; symbol: "pencil"; text: "Rename"; width: parent.width }
                OVMenuSeparator { width: parent.width }
                OVMenuItem { checkable: true; checked: true; text: "Pinned"; width: parent.width }
                OVMenuItem { destructive: true; symbol: "trash"; text: "Delete"; width: parent.width }
            }
        }
    }

    OVMenu {
        id: pageMenu

        OVMenuItem { symbol: "star"; text: "Add to favorites" }
        OVMenuItem { shortcutText: "Ctrl D"; symbol: "doc.on.doc"; text: "Duplicate" }
        OVMenu {
            title: "Move to folder"
            OVMenuItem { checkable: true; checked: true; text: "No folder" }
            OVMenuItem { checkable: true; text: "Work" }
        }
        OVMenuSeparator { }
        OVMenuItem { destructive: true; symbol: "trash"; text: "Delete" }
    }

    OVDialog {
        id: dialog

        acceptText: "Delete"
        destructive: true
        message: "Its slides and notes go with it."
        rejectText: "Cancel"
        title: "Delete this deck?"
    }

    OVSheet {
        id: sheet

        title: "New project"

        OVField { focus: true; label: "Name"; width: parent.width }
        OVTextArea { placeholderText: "What it is for"; width: parent.width }
        OVSwitch { indicatorTrailing: true; text: "Due date"; width: parent.width }
    }

    OVToast {
        id: toast

        symbol: "checkmark.circle"
    }
}
