import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// The frame of a screen that is one long list: what stands above the rows scrolls with them, all in one
/// centred column. Delegates are `ScreenListRow`s.
///
/// The rows are one stop for Tab, after what stands above them. The current row is the one that has or last
/// had the focus.
ListView {
    id: list

    /// Widest the column gets.
    property int maximumWidth: Theme.listWidth
    /// Room to keep free beside the column, for rows that draw there.
    property int minimumPadding: 0
    readonly property int padding: Math.max(minimumPadding, width < 760 ? Theme.screenPaddingNarrow : Theme.screenPadding)
    readonly property int columnWidth: Math.max(0, Math.min(maximumWidth, width - 2 * padding))
    readonly property int columnX: Math.round((width - columnWidth) / 2)
    /// What stands above the rows; it gets the width of the column.
    property Item above
    /// Whether the first rows still appear one after the other.
    property bool opening: true
    /// Whether the focus was moved by keys, so that its ring shows.
    property bool focusVisible: false

    /// The person goes from the rows to the stop before them.
    signal leftBackwards()

    /// Gives a row the focus, and brings it into view.
    function focusRow(row: int, reason: int) {
        if (count === 0)
            return
        currentIndex = Math.max(0, Math.min(row, count - 1))
        positionViewAtIndex(currentIndex, ListView.Contain)
        focusVisible = reason !== Qt.MouseFocusReason
        currentItem.forceActiveFocus(reason)
    }

    /// Moves the focus as the key says; false for any other key.
    function moveFocus(key: int): bool {
        const page = Math.max(1, Math.floor(height / Math.max(1, currentItem?.height ?? 1)) - 1)
        const steps = {
            [Qt.Key_Up]: -1,
            [Qt.Key_Down]: 1,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_PageDown]: page,
            [Qt.Key_Home]: -count,
            [Qt.Key_End]: count
        }
        if (!(key in steps))
            return false
        focusRow(currentIndex + steps[key], Qt.TabFocusReason)
        return true
    }

    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 200
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    reuseItems: false
    T.ScrollBar.vertical: OVScrollBar { }

    header: FocusScope {
        id: header

        property int lastRow: 0
        property real lastHeight: 0

        focus: true
        height: list.above?.height ?? 0
        width: list.width

        // A list that shows its beginning goes on to show it when what stands above the rows grows.
        onHeightChanged: {
            const growth = Math.max(0, height - lastHeight)
            lastHeight = height
            if (list.contentY - y <= growth + 1)
                Qt.callLater(list.positionViewAtBeginning)
        }
        onActiveFocusChanged: {
            if (!activeFocus || entry.activeFocus || list.opening)
                return
            // Without a current row, one that is removed can't draw the focus to its neighbour.
            lastRow = Math.max(0, list.currentIndex)
            list.currentIndex = -1
            if (Window.activeFocusItem?.mapToItem(list, 0, 0).y < 0)
                list.positionViewAtBeginning()
        }

        Connections {
            target: list
            function onLeftBackwards() {
                entry.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            }
        }

        Item {
            id: column
            children: [list.above]
            width: list.columnWidth
            x: list.columnX

            Binding {
                target: list.above
                property: "width"
                value: column.width
            }
        }

        // The one stop for Tab that all rows share.
        Item {
            id: entry
            activeFocusOnTab: list.count > 0
            onActiveFocusChanged: {
                if (activeFocus)
                    list.focusRow(list.currentIndex < 0 ? header.lastRow : list.currentIndex, Qt.TabFocusReason)
            }
        }
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
