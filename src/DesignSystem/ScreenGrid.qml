import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// The frame of a screen that is a grid of cards: what stands above the cards scrolls with them, all in one
/// centred column. Delegates are `ScreenGridCard`s.
///
/// The cards are one stop for Tab, after what stands above them; arrow keys go from card to card.
GridView {
    id: grid

    /// Widest the column gets.
    property int maximumWidth: Theme.gridWidth
    property int minimumCardWidth: Theme.fieldWidth
    property int cardHeight: Theme.fieldWidth
    property int gap: Theme.space16
    readonly property int padding: width < 760 ? Theme.screenPaddingNarrow : Theme.screenPadding
    readonly property int columnWidth: Math.max(0, Math.min(maximumWidth, width - 2 * padding))
    readonly property int columnX: Math.round((width - columnWidth) / 2)
    readonly property int columns: Math.max(1, Math.floor((columnWidth + gap) / (minimumCardWidth + gap)))
    /// From one card to the next in a row.
    readonly property real pitch: (columnWidth + gap) / columns
    readonly property int cardWidth: Math.round(pitch - gap)
    /// What stands above the cards; it gets the width of the column.
    property Item above
    /// Whether the first cards still appear one after the other.
    property bool opening: true
    /// Whether the focus was moved by keys, so that its ring shows.
    property bool focusVisible: false

    /// The person goes from the cards to the stop before them.
    signal leftBackwards()

    /// Gives a card the focus, and brings it into view.
    function focusCard(index: int, reason: int) {
        if (count === 0)
            return
        currentIndex = Math.max(0, Math.min(index, count - 1))
        if (currentIndex < columns)
            positionViewAtBeginning()
        else
            positionViewAtIndex(currentIndex, GridView.Contain)
        focusVisible = reason !== Qt.MouseFocusReason
        currentItem.forceActiveFocus(reason)
    }

    /// Moves the focus as the key says; false for any other key.
    function moveFocus(key: int): bool {
        const page = columns * Math.max(1, Math.floor(height / cellHeight) - 1)
        const inColumn = count - 1 - (count - 1 - currentIndex) % columns
        const targets = {
            [Qt.Key_Left]: currentIndex - 1,
            [Qt.Key_Right]: currentIndex + 1,
            [Qt.Key_Up]: currentIndex < columns ? currentIndex : currentIndex - columns,
            [Qt.Key_Down]: currentIndex + columns,
            [Qt.Key_PageUp]: currentIndex < page ? currentIndex % columns : currentIndex - page,
            [Qt.Key_PageDown]: currentIndex + page < count ? currentIndex + page : inColumn,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1
        }
        if (!(key in targets))
            return false
        focusCard(targets[key], Qt.TabFocusReason)
        return true
    }

    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 200
    cellHeight: cardHeight + gap
    // The view fills its width with cells; each card draws itself within the column.
    cellWidth: Math.max(1, Math.floor(width / columns))
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    T.ScrollBar.vertical: OVScrollBar { }

    header: FocusScope {
        id: header

        property int lastCard: 0
        property real lastHeight: 0

        focus: true
        height: grid.above?.height ?? 0
        width: grid.width

        // A grid that shows its beginning goes on to show it when what stands above the cards grows.
        onHeightChanged: {
            const growth = Math.max(0, height - lastHeight)
            lastHeight = height
            if (grid.contentY - y <= growth + 1)
                Qt.callLater(grid.positionViewAtBeginning)
        }
        onActiveFocusChanged: {
            if (!activeFocus || entry.activeFocus || grid.opening)
                return
            // Without a current card, one that is removed can't draw the focus to its neighbour.
            lastCard = Math.max(0, grid.currentIndex)
            grid.currentIndex = -1
            if (Window.activeFocusItem?.mapToItem(grid, 0, 0).y < 0)
                grid.positionViewAtBeginning()
        }

        Connections {
            target: grid
            function onLeftBackwards() {
                entry.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            }
        }

        Item {
            id: column
            children: [grid.above]
            width: grid.columnWidth
            x: grid.columnX

            Binding {
                target: grid.above
                property: "width"
                value: column.width
            }
        }

        // The one stop for Tab that all cards share.
        Item {
            id: entry
            activeFocusOnTab: grid.count > 0
            onActiveFocusChanged: {
                if (activeFocus)
                    grid.focusCard(grid.currentIndex < 0 ? header.lastCard : grid.currentIndex, Qt.TabFocusReason)
            }
        }
    }
    footer: Item {
        height: grid.padding
    }
    displaced: Transition {
        NumberAnimation { properties: "x,y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }
    move: Transition {
        NumberAnimation { properties: "x,y"; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
    }

    Timer {
        interval: Theme.durationScreen
        running: true
        onTriggered: grid.opening = false
    }
}
