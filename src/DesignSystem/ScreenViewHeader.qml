import QtQuick

/// The head of a `ScreenList` or `ScreenGrid`: what is shown above its items, in the screen's column, and behind it
/// the one stop for Tab that all items share.
FocusScope {
    id: root

    /// The list or grid.
    required property var view
    property int lastIndex: 0
    property real lastHeight: 0

    /// Gives the focus to the stop before the items.
    function exitBackwards() {
        entry.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }

    focus: true
    height: view.above?.height ?? 0
    width: view.width

    // A view that shows its beginning goes on to show it when what is shown above the items grows.
    onHeightChanged: {
        const growth = Math.max(0, height - lastHeight)
        lastHeight = height
        if (view.contentY - y <= growth + 1)
            Qt.callLater(view.positionViewAtBeginning)
    }
    onActiveFocusChanged: {
        if (!activeFocus || entry.activeFocus || view.opening)
            return
        // Without a current item, one that is removed can't draw the focus to its neighbour.
        lastIndex = Math.max(0, view.currentIndex)
        view.currentIndex = -1
        if (Window.activeFocusItem?.mapToItem(view, 0, 0).y < 0)
            view.positionViewAtBeginning()
    }

    Item {
        id: column
        children: [root.view.above]
        width: root.view.columnWidth
        x: root.view.columnX

        Binding {
            target: root.view.above
            property: "width"
            value: column.width
        }
    }

    Item {
        id: entry
        activeFocusOnTab: root.view.count > 0 || activeFocus
        onActiveFocusChanged: {
            if (activeFocus)
                root.view.keys.focus(root.view.currentIndex < 0 ? root.lastIndex : root.view.currentIndex,
                                     Qt.TabFocusReason)
        }
    }
}
