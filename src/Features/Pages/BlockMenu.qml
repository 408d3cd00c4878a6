import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What can be done with a block, or with all that are selected. One menu serves all rows.
OVMenu {
    id: root

    required property PageEditorViewModel editor
    /// The word that the caret is in.
    required property SpelledWord word
    /// The row whose menu it is.
    property BlockRow row: null
    property bool hadFocus: false
    /// Whether it is the menu of the selected blocks.
    property bool isOfSelection: false
    readonly property PageSelection selection: editor.selection
    /// The address that the caret is in; empty for none.
    property string link: ""

    function openFor(row: var, from: Item) {
        root.row = row
        isOfSelection = selection.includes(row.index)
        hadFocus = row.activeFocus
        const input = row.part.input
        link = input?.activeFocus ? editor.linkIn(input.text, input.cursorPosition) : ""
        const byKeys = from === row
        if (byKeys)
            openBeside(row, row.list.columnX, 0, Math.min(row.rowHeight, 2 * row.part.firstLineCenter))
        else
            openBeside(from, 0, 0, from.height)
        currentIndex = byKeys ? spelling.firstIndex : -1
    }

    /// Makes a selection of the block that the menu is of, if it is not of one.
    function selectRow() {
        if (!isOfSelection)
            selection.select(row.blockID, row.blockID)
    }

    function move(direction: int) {
        if (isOfSelection)
            selection.move(direction)
        else
            editor.moveBlock(row?.blockID, direction)
    }

    SpellingEntries {
        id: spelling
        menu: root
        word: root.word
    }

    OVMenu {
        id: types
        title: qsTr("Turn into")

        Repeater {
            model: root.editor.typeLabels.length

            OVMenuItem {
                required property int index

                autoExclusive: true
                checkable: true
                checked: !root.isOfSelection && root.row?.type === index
                symbol: root.editor.typeSymbols[index]
                text: root.editor.typeLabels[index]
                onTriggered: {
                    if (root.isOfSelection)
                        root.selection.changeType(index)
                    else
                        root.editor.changeType(root.row?.blockID, index)
                }
            }
        }
    }

    OVMenuSeparator { }

    OVMenuItem {
        height: root.link !== "" ? implicitHeight : 0
        symbol: "link"
        text: qsTr("Open link")
        visible: root.link !== ""
        onTriggered: root.editor.openLink(root.link)
    }

    OVMenuItem {
        symbol: "plus.square.on.square"
        text: qsTr("Duplicate")
        onTriggered: {
            if (root.isOfSelection)
                root.selection.duplicate()
            else
                root.editor.duplicateBlock(root.row?.blockID)
        }
    }

    OVMenuItem {
        shortcutText: root.isOfSelection ? qsTr("Ctrl X") : ""
        symbol: "scissors"
        text: qsTr("Cut")
        onTriggered: {
            root.selectRow()
            root.selection.cut()
        }
    }

    OVMenuItem {
        shortcutText: root.isOfSelection ? qsTr("Ctrl C") : ""
        symbol: "doc.on.doc"
        text: qsTr("Copy")
        onTriggered: {
            root.selectRow()
            root.selection.copy()
        }
    }

    OVMenuSeparator { }

    OVMenuItem {
        enabled: root.isOfSelection ? root.selection.first > 0 : root.row?.canMoveUp ?? false
        shortcutText: qsTr("Ctrl Shift ↑")
        symbol: "arrow.up"
        text: qsTr("Move up")
        onTriggered: root.move(-1)
    }

    OVMenuItem {
        enabled: root.isOfSelection ? root.selection.last < root.editor.rows.rowCount() - 1 : root.row?.canMoveDown ?? false
        shortcutText: qsTr("Ctrl Shift ↓")
        symbol: "arrow.down"
        text: qsTr("Move down")
        onTriggered: root.move(1)
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        symbol: "trash"
        text: qsTr("Delete")
        onTriggered: {
            if (root.isOfSelection) {
                root.selection.remove()
                return
            }
            // The menu has the focus, which shall come back to where the block was.
            if (root.hadFocus)
                root.editor.blockFocused(root.row.blockID)
            root.editor.deleteBlock(root.row.blockID)
        }
    }
}
