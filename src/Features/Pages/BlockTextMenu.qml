import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The context menu of the text of a block.
OVTextMenu {
    id: root

    readonly property BlockField field: target as BlockField
    required property SpelledWord word
    /// The address that was clicked; empty for none.
    property string link: ""

    function paste() {
        field.editTarget.paste()
    }

    storeBacked: true
    onRedoRequested: Orvel.undo.redo()
    onUndoRequested: Orvel.undo.undo()

    SpellingEntries {
        id: spelling
        menu: root
        word: root.word
    }

    OVMenuSeparator {
        height: root.link !== "" ? implicitHeight : 0
        visible: root.link !== ""
    }

    OVMenuItem {
        height: root.link !== "" ? implicitHeight : 0
        shortcutText: qsTr("Ctrl click")
        symbol: "link"
        text: qsTr("Open link")
        visible: root.link !== ""
        onTriggered: root.field.editor.openLink(root.link)
    }

    OVMenuItem {
        height: root.link !== "" ? implicitHeight : 0
        symbol: "doc.on.doc"
        text: qsTr("Copy link")
        visible: root.link !== ""
        onTriggered: root.field.editor.copyLink(root.link)
    }
}
