import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// The blocks of a page below what stands above them, in one scrolling column. Only the rows in sight exist,
/// and the one that has the focus.
ScreenList {
    id: root

    required property PageEditorViewModel editor
    readonly property bool menuOpen: (menu.item as BlockMenu)?.visible ?? false

    /// Up from the first block.
    signal leftUp()
    /// Tab from the last block, where no button follows.
    signal leftForwards()

    function rowAt(index: int): BlockRow {
        return itemAtIndex(index) as BlockRow
    }

    /// Makes the row of this index and brings it into view.
    function show(index: int): BlockRow {
        currentIndex = Math.max(0, Math.min(index, count - 1))
        positionViewAtIndex(currentIndex, ListView.Contain)
        return currentItem as BlockRow
    }

    function focusBlock(index: int, caret: int) {
        if (count === 0)
            return
        blockCaret.column = -1
        keys.ringShown = true
        show(index).part.focusAt(caret)
    }

    function focusFirst() {
        if (count > 0)
            focusBlock(0, 0)
        else
            editor.appendBlock()
    }

    /// Gives the focus back to where it was.
    function restoreFocus() {
        if (currentIndex >= 0)
            focusBlock(currentIndex, -1)
        else
            above.forceActiveFocus(Qt.OtherFocusReason)
    }

    /// Goes from a block to its neighbour, keeping the place across.
    function step(index: int, direction: int) {
        if (blockCaret.column < 0)
            blockCaret.column = rowAt(index).part.columnIn(root)
        const next = index + direction
        if (next < 0)
            leftUp()
        if (next < 0 || next >= count)
            return
        keys.ringShown = true
        show(next).part.enter(direction, root, blockCaret.column)
    }

    function tab(index: int, forward: bool) {
        const next = index + (forward ? 1 : -1)
        keys.ringShown = true
        if (next < 0)
            exitBackwards()
        else if (next < count)
            show(next).part.focusByTab(forward)
        else if (editor.isZen)
            leftForwards()
        else
            (footerItem as BlockListFooter).button.forceActiveFocus(Qt.TabFocusReason)
    }

    function jump(index: int, key: int) {
        const page = Math.max(1, Math.floor(height / Math.max(1, currentItem?.height ?? 1)) - 1)
        const targets = {
            [Qt.Key_PageUp]: index - page,
            [Qt.Key_PageDown]: index + page,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1
        }
        const row = show(targets[key])
        if (key === Qt.Key_End)
            row.part.focusAtEnd()
        else
            row.part.focusAt(0)
    }

    /// Scrolls so that the caret keeps a distance from the edges.
    function reveal(field: Item, caret: rect) {
        if (moving || !field?.activeFocus)
            return
        const margin = Theme.space24
        const top = field.mapToItem(contentItem, caret.x, caret.y).y - margin
        const bottom = top + caret.height + 2 * margin
        if (top < contentY)
            contentY = Math.max(originY, top)
        else if (bottom > contentY + height)
            contentY = Math.max(originY, Math.min(bottom, originY + contentHeight) - height)
    }

    function openMenu(row: BlockRow, from: Item) {
        menu.active = true;
        (menu.item as BlockMenu).openFor(row, from)
    }

    function openToneMenu(row: BlockRow, from: Item) {
        tones.active = true
        const toneMenu = tones.item as ChoiceMenu
        toneMenu.row = row
        toneMenu.openBeside(from, 0, 0, from.height)
    }

    // New blocks come while the person types, when nothing else may move.
    addDisplaced: null
    maximumWidth: editor.isZen ? Theme.zenWidth : Theme.readingWidth
    minimumPadding: 2 * Theme.space24 + 2 * Theme.space4
    model: editor.rows
    // A page is there at once, for reading and writing.
    opening: false

    delegate: BlockRow {
        caret: blockCaret
        editor: root.editor
        menuShown: root.menuOpen && (menu.item as BlockMenu).row === this
        onCaretMoved: (field, caret) => Qt.callLater(root.reveal, field, caret)
        onJumped: key => root.jump(index, key)
        onDeparted: direction => root.step(index, direction)
        onMenuRequested: from => root.openMenu(this, from)
        onTabbed: forward => root.tab(index, forward)
        onToneMenuRequested: from => root.openToneMenu(this, from)
    }
    footer: BlockListFooter {
        columnWidth: root.columnWidth
        columnX: root.columnX
        hasButton: !root.editor.isZen
        width: root.width
        onAddRequested: root.editor.appendBlock()
        onLeftBackwards: root.count > 0 ? root.show(root.count - 1).part.focusByTab(false) : root.exitBackwards()
    }

    BlockCaret {
        id: blockCaret
    }

    Connections {
        target: root.editor
        function onFocusRequested(row, caret) {
            root.focusBlock(row, caret)
        }
        function onSlashTypesChanged() {
            if (root.editor.slashTypes.length > 0)
                slash.active = true
        }
    }

    // The menus are made when they are first asked for.
    // qmllint disable unqualified
    Loader {
        id: menu
        active: false
        sourceComponent: BlockMenu { editor: root.editor }
    }

    Loader {
        id: tones
        active: false
        sourceComponent: ChoiceMenu {
            property BlockRow row

            current: row?.tone ?? -1
            symbols: root.editor.toneSymbols
            texts: root.editor.toneLabels
            onChosen: tone => root.editor.setTone(row.blockID, tone)
        }
    }

    Loader {
        id: slash
        active: false
        sourceComponent: SlashMenu {
            column: root.columnX
            editor: root.editor
            row: root.currentItem as BlockRow
            visible: root.editor.slashTypes.length > 0
        }
    }
    // qmllint enable unqualified
}
