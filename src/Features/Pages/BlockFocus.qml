import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// A list of blocks as far as the focus, the caret and the view move in it.
ScreenList {
    id: root

    required property PageEditorViewModel editor
    readonly property BlockCaret caret: BlockCaret { }
    /// Taken along by the pointer, which then moves the view.
    property BlockRow draggedRow: null

    /// Up from the first block.
    signal leftUp()
    /// Tab from the last block, where no button follows.
    signal leftForwards()

    function rowAt(index: int): BlockRow {
        return itemAtIndex(index) as BlockRow
    }

    /// Makes the row of this index, and brings it into view if nothing of it is seen.
    function show(index: int): BlockRow {
        currentIndex = Math.max(0, Math.min(index, count - 1))
        if (currentItem.y + currentItem.height <= contentY || currentItem.y >= contentY + height)
            positionViewAtIndex(currentIndex, ListView.Contain)
        return currentItem as BlockRow
    }

    function focusBlock(index: int, position: int) {
        if (count === 0)
            return
        caret.column = -1
        keys.ringShown = true
        show(index).part.focusAt(position)
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

    /// Takes a key that comes while the page has the focus and no text has it.
    function enterByKey(event: KeyEvent) {
        const keys = [Qt.Key_Down, Qt.Key_Return, Qt.Key_Enter, Qt.Key_PageDown, Qt.Key_Home, Qt.Key_End]
        event.accepted = keys.includes(event.key)
        if (event.accepted)
            focusFirst()
        if (event.key === Qt.Key_PageDown)
            turnPage(1)
        else if (event.key === Qt.Key_End)
            jump(event.key)
    }

    /// Goes from a block to its neighbour, keeping the place across.
    function step(index: int, direction: int) {
        if (editor.showPart(rowAt(index).blockID, direction))
            return
        if (caret.column < 0)
            caret.column = rowAt(index).part.caretIn(root).x
        const next = index + direction
        if (next < 0)
            leftUp()
        if (next < 0 || next >= count)
            return
        keys.ringShown = true
        show(next).part.enter(direction, root, caret.column)
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

    /// Brings a stretch of the text of a block into view, and selects it if the keyboard shall be there.
    function showMatch(index: int, start: int, length: int, selects: bool) {
        const part = show(index).part
        if (!part.input)
            return
        if (selects) {
            keys.ringShown = true
            part.focusAt(start + length)
            part.input.select(start, start + length)
        }
        forceLayout()
        part.showStretch(start, length)
        const place = part.input.positionToRectangle(start)
        const top = part.input.mapToItem(contentItem, place.x, place.y).y
        const margin = Theme.space48
        if (top < contentY + margin || top + place.height > contentY + height - margin)
            scrollTo(top - height / 3)
    }

    /// Goes to the first or the last block.
    function jump(key: int) {
        if (key === Qt.Key_End)
            show(count - 1).part.focusAtEnd()
        else
            show(0).part.focusAt(0)
    }

    /// Moves the caret and the view by the height of the view, less what makes it easy to read on.
    function turnPage(direction: int) {
        if (!currentItem)
            return
        const distance = direction * Math.max(Theme.space48, height - 2 * Theme.space48)
        const place = (currentItem as BlockRow).part.caretIn(contentItem)
        const aim = place.y + place.height / 2 + distance
        if (caret.column < 0)
            caret.column = place.x
        scrollTo(contentY + distance)
        const row = rowNear(aim)
        currentIndex = row.index
        row.part.focusAtPoint(contentItem, caret.column, aim)
    }

    function scrollTo(y: real) {
        contentY = Math.max(originY, Math.min(y, originY + contentHeight - height))
        forceLayout()
        returnToBounds()
    }

    /// The row at this height of the contents, or else the first or the last one.
    function rowNear(y: real): BlockRow {
        const index = indexAt(width / 2, y)
        return rowAt(index) ?? show(y < footerItem.y ? 0 : count - 1)
    }

    /// A click beside a block puts the caret on the line there, one below the blocks to the end of the text.
    function focusBeside(x: real, y: real) {
        if (count === 0 || y + contentY < headerItem.y + headerItem.height)
            return
        caret.column = -1
        keys.ringShown = false
        const row = rowNear(y + contentY)
        if (y + contentY < footerItem.y)
            row.part.focusAtPoint(root, x, y)
        else
            row.part.focusAtEnd()
    }

    /// Scrolls so that the caret keeps a distance from the edges.
    function reveal() {
        const part = (currentItem as BlockRow)?.part
        if (moving || draggedRow || !part?.activeFocus)
            return
        // Rows that have grown must have moved the others before the view goes on.
        forceLayout()
        const place = part.caretIn(contentItem)
        // Without anything else on the screen the line that is written stays in its middle.
        if (editor.isZen && caret.typing && (part.input?.selectedText ?? "") === "") {
            contentY = Math.max(originY, Math.min(originY + contentHeight, place.y + (place.height + height) / 2) - height)
            return
        }
        const margin = Theme.space32
        if (place.y - margin < contentY)
            contentY = Math.max(originY, place.y - margin)
        else if (place.y + place.height + margin > contentY + height)
            contentY = Math.min(place.y + place.height + margin, originY + contentHeight) - height
    }
}
