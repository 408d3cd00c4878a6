import QtQuick

/// A grid of controls that is one stop for Tab; the arrow keys, Home and End go from one to the next. The controls
/// take `tabStop` from `current` and tell of a press with `follow`.
Grid {
    id: root

    /// Makes the controls of the grid.
    required property Repeater items
    /// Position of the control that Tab leads to.
    property int current: 0

    /// A key led to the control at this position.
    signal moved(index: int)

    function go(index: int) {
        if (index < 0 || index >= items.count)
            return
        // What has the focus cannot cease to be a stop for Tab, so the focus goes first.
        items.itemAt(index).forceActiveFocus(Qt.TabFocusReason)
        current = index
        moved(index)
    }

    /// Follows a press by the pointer, which takes the focus along only if it is in the grid.
    function follow(index: int) {
        if (items.itemAt(current)?.activeFocus ?? false)
            items.itemAt(index).forceActiveFocus(Qt.MouseFocusReason)
        current = index
    }

    Keys.onLeftPressed: event => {
        event.accepted = !(event.modifiers & Qt.AltModifier)
        if (event.accepted)
            root.go(root.current - 1)
    }
    Keys.onRightPressed: go(current + 1)
    Keys.onUpPressed: go(current - columns)
    Keys.onDownPressed: go(current + columns)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            root.go(0)
        else if (event.key === Qt.Key_End)
            root.go(root.items.count - 1)
        else
            return
        event.accepted = true
    }
}
