import QtQuick
import Orvel.Pages

/// What stands in a row for its block. The bodies answer how keys come in, move about and leave.
FocusScope {
    id: root

    required property PageEditorViewModel editor
    required property var blockID
    /// Gets the keys before the fields do.
    required property Item keyTarget
    /// Where the middle of the first line stands.
    property real firstLineCenter: height / 2

    /// Whether the focus is where almost every key means something of its own.
    property bool hasOwnKeys: false

    /// Whether its row has put the caret where it belongs; until then it tells nobody of it.
    property bool isReady: false

    /// The caret was moved by the person, or the field under it grew.
    signal caretMoved(field: Item, caret: rect)

    /// The parts that take the focus, in the order of Tab.
    function stops(): list<Item> {
        return [root]
    }

    /// Whether Up or Down leaves the block from where the caret is.
    function leaves(direction: int): bool {
        return true
    }

    /// Where the caret is across an item.
    function columnIn(item: Item): real {
        return mapToItem(item, 0, 0).x
    }

    /// Takes the focus coming from above or below, at a place across an item.
    function enter(direction: int, item: Item, column: real) {
        forceActiveFocus(Qt.OtherFocusReason)
    }

    /// Puts the caret at this place in the text.
    function placeCaret(caret: int) {
    }

    /// Takes the focus with the caret at this place in the text; -1 leaves it where it is.
    function focusAt(caret: int) {
        if (caret >= 0)
            placeCaret(caret)
        forceActiveFocus(Qt.OtherFocusReason)
    }

    /// Takes the focus as Tab or Shift+Tab brings it.
    function focusByTab(forward: bool) {
        const all = stops()
        all[forward ? 0 : all.length - 1].forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    /// The end of the text, for keys that go there.
    function focusAtEnd() {
        forceActiveFocus(Qt.OtherFocusReason)
    }

    focus: true
}
