import QtQuick

/// A grid of controls that is one stop for Tab; the arrow keys, Home and End go from one to the next. The controls
/// take `activeFocusOnTab` from `current` and set it when they get the focus.
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
        current = index
        items.itemAt(index).forceActiveFocus(Qt.TabFocusReason)
        moved(index)
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
