import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// What can be done with a block. One menu serves all rows.
OVMenu {
    id: root

    required property PageEditorViewModel editor
    /// The row whose menu it is.
    property BlockRow row: null
    property bool hadFocus: false

    function openFor(row: BlockRow, from: Item) {
        root.row = row
        hadFocus = row.activeFocus
        const byKeys = from === row
        if (byKeys)
            openBeside(row, row.list.columnX, 0, Math.min(row.rowHeight, 2 * row.part.firstLineCenter))
        else
            openBeside(from, 0, 0, from.height)
        currentIndex = byKeys ? 0 : -1
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
                checked: root.row?.type === index
                symbol: root.editor.typeSymbols[index]
                text: root.editor.typeLabels[index]
                onTriggered: root.editor.changeType(root.row?.blockID, index)
            }
        }
    }

    OVMenuSeparator { }

    OVMenuItem {
        symbol: "plus.square.on.square"
        text: qsTr("Duplicate")
        onTriggered: root.editor.duplicateBlock(root.row?.blockID)
    }

    OVMenuItem {
        enabled: root.row?.canMoveUp ?? false
        shortcutText: qsTr("Ctrl Shift ↑")
        symbol: "arrow.up"
        text: qsTr("Move up")
        onTriggered: root.editor.moveBlock(root.row?.blockID, -1)
    }

    OVMenuItem {
        enabled: root.row?.canMoveDown ?? false
        shortcutText: qsTr("Ctrl Shift ↓")
        symbol: "arrow.down"
        text: qsTr("Move down")
        onTriggered: root.editor.moveBlock(root.row?.blockID, 1)
    }

    OVMenuSeparator { }

    OVMenuItem {
        destructive: true
        symbol: "trash"
        text: qsTr("Delete")
        onTriggered: {
            // The menu has the focus, which shall come back to where the block was.
            if (root.hadFocus)
                root.editor.blockFocused(root.row.blockID)
            root.editor.deleteBlock(root.row.blockID)
        }
    }
}
