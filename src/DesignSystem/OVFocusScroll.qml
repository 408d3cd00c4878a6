import QtQuick
import Orvel.DesignSystem

/// Scrolls a view so that what gets the focus in a part of it can be seen, unless that is too high.
Item {
    id: root

    required property Flickable view
    /// The part of the view.
    required property Item scope
    readonly property Item focusItem: Window.activeFocusItem

    function scrollTo(y: real) {
        view.contentY = Math.max(view.originY, Math.min(y, view.originY + view.contentHeight - view.height))
    }

    function reveal(item: Item) {
        const top = item.mapToItem(view.contentItem, 0, 0).y
        const bottom = top + item.height
        if (item.height > view.height)
            return
        if (top < view.contentY)
            scrollTo(top - Theme.space24)
        else if (bottom > view.contentY + view.height)
            scrollTo(bottom + Theme.space24 - view.height)
    }

    onFocusItemChanged: {
        if (focusItem && (scope?.activeFocus ?? false))
            Qt.callLater(reveal, focusItem)
    }
}
