import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// What can be done with the selected slide.
OVMenu {
    id: root

    required property DeckEditorViewModel editor

    signal deleteRequested()

    OVMenuItem {
        shortcutText: qsTr("Ctrl D")
        symbol: "plus.square.on.square"
        text: qsTr("Duplicate slide")
        onTriggered: root.editor.duplicateSlide()
    }

    OVMenuItem {
        enabled: root.editor.selectedIndex > 0
        shortcutText: qsTr("Ctrl ←")
        symbol: "arrow.left"
        text: qsTr("Move left")
        onTriggered: root.editor.moveSlide(-1)
    }

    OVMenuItem {
        enabled: root.editor.selectedIndex < root.editor.slideCount - 1
        shortcutText: qsTr("Ctrl →")
        symbol: "arrow.right"
        text: qsTr("Move right")
        onTriggered: root.editor.moveSlide(1)
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        shortcutText: qsTr("Del")
        symbol: "trash"
        text: qsTr("Delete slide")
        onTriggered: root.deleteRequested()
    }
}
