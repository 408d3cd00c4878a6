import QtQuick
import Orvel.DesignSystem

/// A list inside a card, as high as its rows. Delegates are `OVCardListRow`s, all of one height.
///
/// The rows are one stop for Tab; arrow keys go from row to row. The current row is the one that has or last had
/// the focus.
ListView {
    id: list

    property int rowHeight: Theme.fieldHeight
    readonly property ListFocus keys: ListFocus {
        view: list
        onExited: edge => list.leave(edge !== Qt.TopEdge)
    }

    /// Gives the focus to the stop after or before the rows.
    function leave(forwards: bool) {
        // Seen from a row, the way backwards begins at the list itself.
        const from = forwards && currentItem ? currentItem : list
        from.nextItemInFocusChain(forwards).forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    // The focus may still be here when the last row goes.
    activeFocusOnTab: count > 0 || activeFocus
    currentIndex: -1
    highlightFollowsCurrentItem: false
    implicitHeight: contentHeight
    interactive: false
    keyNavigationEnabled: false
    Accessible.role: Accessible.List

    onActiveFocusChanged: {
        if (activeFocus && Window.activeFocusItem === list)
            keys.focus(Math.max(0, currentIndex), Qt.TabFocusReason)
    }

    addDisplaced: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }
    removeDisplaced: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }
    moveDisplaced: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }
}
