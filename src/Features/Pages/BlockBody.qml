import QtQuick
import Orvel.Pages

/// What stands in a row for its block. It answers how keys and clicks come in, move about and leave.
FocusScope {
    id: root

    required property PageEditorViewModel editor
    required property var blockID
    /// Gets the keys before the fields do.
    required property Item keyTarget
    /// The text of the block; null for a block without one.
    property TextEdit input: null
    /// Where the middle of the first line stands.
    property real firstLineCenter: height / 2
    /// Whether the focus is where almost every key means something of its own.
    property bool hasOwnKeys: false
    /// Whether its row has put the caret where it belongs; until then caretMoved() is not sent.
    property bool isReady: false

    /// The caret was moved, or the text around it.
    signal caretMoved()

    /// The parts that take the focus, in the order of Tab.
    function stops(): list<Item> {
        return [root]
    }

    /// Whether Up or Down leaves the block from where the caret is.
    function leaves(direction: int): bool {
        if (!input?.activeFocus)
            return true
        const outer = input.positionToRectangle(direction < 0 ? 0 : input.length)
        const caret = input.cursorRectangle
        return !input.inputMethodComposing
                && (direction < 0 ? caret.y < outer.y + outer.height / 2 : caret.y + caret.height / 2 > outer.y)
    }

    /// Whether Page Up or Page Down leaves the block.
    function leavesByPage(direction: int): bool {
        return !hasOwnKeys
    }

    /// The caret in the coordinates of an item; the whole of a block without text.
    function caretIn(item: Item): rect {
        const place = input ? input.cursorRectangle : Qt.rect(0, 0, width, height)
        const corner = (input ?? root).mapToItem(item, place.x, place.y)
        return Qt.rect(corner.x, corner.y, place.width, place.height)
    }

    /// Takes the focus with the caret as near as can be to a point in the coordinates of an item.
    function focusAtPoint(item: Item, x: real, y: real) {
        if (input) {
            const point = input.mapFromItem(item, x, y)
            const first = input.positionToRectangle(0)
            const last = input.positionToRectangle(input.length)
            const line = Math.max(first.y + first.height / 2, Math.min(last.y + last.height / 2, point.y))
            input.cursorPosition = input.positionAt(point.x, line)
        }
        focusAt(-1)
    }

    /// Takes the focus coming from above (1) or below (-1), at a place across an item.
    function enter(direction: int, item: Item, column: real) {
        focusAtPoint(item, column, mapToItem(item, 0, direction > 0 ? 0 : height).y)
    }

    /// Puts the caret at this place in the text.
    function placeCaret(caret: int) {
        if (input)
            input.cursorPosition = Math.min(caret, input.length)
    }

    /// Takes the focus with the caret at this place in the text; -1 leaves it where it is.
    function focusAt(caret: int) {
        if (caret >= 0)
            placeCaret(caret)
        const target = input ?? root
        target.forceActiveFocus(Qt.OtherFocusReason)
    }

    /// Takes the focus as Tab or Shift+Tab brings it.
    function focusByTab(forward: bool) {
        const all = stops()
        all[forward ? 0 : all.length - 1].forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    /// Brings a stretch of a text that scrolls by itself into view.
    function showStretch(start: int, length: int) {
    }

    /// Takes the focus with the caret at the end of the text.
    function focusAtEnd() {
        focusAt(input?.length ?? -1)
    }

    /// Tells the editor where the focus goes.
    function tellFocus(isHere: bool) {
        if (isHere)
            editor.blockFocused(blockID)
        else
            editor.blockLeft(blockID)
        tellCaret()
    }

    function tellCaret() {
        if (isReady && (input ?? root).activeFocus)
            caretMoved()
    }

    focus: true

    Connections {
        target: root.input
        function onActiveFocusChanged() {
            root.tellFocus(root.input.activeFocus)
        }
        function onCursorRectangleChanged() {
            root.tellCaret()
        }
    }
}
