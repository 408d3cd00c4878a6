import QtQuick

/// The keys of undo and redo, for a text field whose text is kept in the store and leaves undo to its history.
QtObject {
    id: root

    signal undoRequested()
    signal redoRequested()

    /// Takes the event if it is one of these keys.
    function handle(event: KeyEvent): bool {
        const undo = event.key === Qt.Key_Z
        if (undo && event.modifiers === Qt.ControlModifier)
            root.undoRequested()
        else if ((undo && event.modifiers === (Qt.ControlModifier | Qt.ShiftModifier))
                 || (event.key === Qt.Key_Y && event.modifiers === Qt.ControlModifier))
            root.redoRequested()
        else
            return false
        event.accepted = true
        return true
    }
}
