import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// The frame of a screen that is one long list: what is shown above the rows scrolls with them, all in one
/// centred column. Delegates are `ScreenListRow`s.
///
/// The rows are one stop for Tab, after what is shown above them. The current row is the one that has or last
/// had the focus.
ListView {
    id: list

    /// The screen's name; its rows appear one after the other at the first visit. Empty for rows that are there at
    /// once.
    property string screen: ""
    /// Widest the column gets.
    property int maximumWidth: Theme.listWidth
    /// Room to keep free beside the column, for rows that draw there.
    property int minimumPadding: 0
    readonly property int padding: Math.max(minimumPadding, width < 760 ? Theme.screenPaddingNarrow : Theme.screenPadding)
    readonly property int columnWidth: Math.max(0, Math.min(maximumWidth, width - 2 * padding))
    readonly property int columnX: Math.round((width - columnWidth) / 2)
    /// What is shown above the rows; it gets the width of the column.
    property Item above
    /// Whether the first rows still come.
    property bool opening: true
    /// Whether they come one after the other.
    readonly property bool staggered: screen !== "" && Visits.isFirst(screen)
    readonly property ListFocus keys: ListFocus {
        view: list
        onExited: edge => list.exited(edge)
    }

    /// The user goes on beyond the first or last row by a key, to a `Qt.Edge`.
    signal exited(edge: int)
    /// A row has come: one whose place was kept gives it up.
    signal rowAdded()

    /// Gives the focus to the stop before the rows.
    function exitBackwards() {
        (headerItem as ScreenViewHeader).exitBackwards()
    }

    /// Gives the focus to the first stop below the rows; false if there is none.
    function exitForwards(): bool {
        const next = footerItem?.nextItemInFocusChain(true) ?? null
        for (let around = next?.parent; around; around = around.parent) {
            if (around !== footerItem)
                continue
            next.forceActiveFocus(Qt.TabFocusReason)
            return true
        }
        return false
    }

    boundsBehavior: Flickable.StopAtBounds
    // What is made ahead is asked for again by its index, which this Qt version warns of once rows are gone.
    cacheBuffer: 0
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    reuseItems: false
    T.ScrollBar.vertical: OVScrollBar { }

    header: ScreenViewHeader {
        view: list
    }
    footer: Item {
        height: list.padding
    }
    addDisplaced: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }
    move: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }
    moveDisplaced: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }

    Timer {
        interval: Theme.durationScreen
        running: true
        onTriggered: list.opening = false
    }
}
