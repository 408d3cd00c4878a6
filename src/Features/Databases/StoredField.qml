import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A line of text edited where it stands, written into the store as it is typed. A long text is elided at rest.
OVTextField {
    id: field

    /// The text as it is stored.
    required property string stored
    property color ink: Theme.ovInk

    plain: true
    storeBacked: true
    color: elided.visible ? "transparent" : ink

    Component.onCompleted: text = stored
    Keys.onEscapePressed: event => {
        event.accepted = activeFocus
        nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
    }
    onAccepted: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
    onActiveFocusChanged: {
        Orvel.undo.endTyping()
        if (activeFocus && (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason))
            selectAll()
    }
    onRedoRequested: Orvel.undo.redo()
    onStoredChanged: {
        if (text === stored || inputMethodComposing)
            return
        const caret = cursorPosition
        text = stored
        cursorPosition = Math.min(caret, length)
    }
    onUndoRequested: Orvel.undo.undo()

    OVText {
        id: elided
        Accessible.ignored: true
        anchors.fill: parent
        color: field.ink
        font: field.font
        text: field.text
        visible: !field.autoScroll && field.contentWidth > field.width
    }
}
