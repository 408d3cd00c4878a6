import QtQuick
import Orvel.Decks

/// The keys of the screen of decks, wherever in it the keyboard is.
Item {
    id: root

    required property DeckEditorViewModel editor
    required property DeckPane pane
    property bool active: true

    Shortcut {
        autoRepeat: false
        enabled: root.active
        sequence: "Ctrl+Shift+P"
        onActivated: root.pane.present()
    }

    Shortcut {
        autoRepeat: false
        enabled: root.active
        sequence: "Ctrl+M"
        onActivated: root.pane.addSlide(root.editor.hasSlide ? "bullets" : "title")
    }

    Shortcut {
        autoRepeat: false
        enabled: root.active
        sequence: "Ctrl+D"
        onActivated: {
            root.pane.commit()
            root.editor.duplicateSlide()
        }
    }
}
