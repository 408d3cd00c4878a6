import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// The frame of a screen that is a grid of cards: what is shown above the cards scrolls with them, all in one
/// centred column. Delegates are `ScreenGridCard`s.
///
/// The cards are one stop for Tab, after what is shown above them; arrow keys go from card to card.
GridView {
    id: grid

    /// The screen's name; its cards appear one after the other at the first visit. Empty for cards that are there
    /// at once.
    property string screen: ""
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
    /// What is shown above the cards; it gets the width of the column.
    property Item above
    /// Whether the first cards still come.
    property bool opening: true
    /// Whether they come one after the other.
    readonly property bool staggered: screen !== "" && Visits.isFirst(screen)
    readonly property ListFocus keys: ListFocus {
        columns: grid.columns
        rowHeight: grid.cellHeight
        view: grid
        onExited: edge => grid.exited(edge)
    }

    /// The user goes on beyond the cards by a key, to a `Qt.Edge`.
    signal exited(edge: int)
    /// A card has come: one whose place was kept gives it up.
    signal cardAdded()

    /// Gives the focus to the stop before the cards.
    function exitBackwards() {
        (headerItem as ScreenViewHeader).exitBackwards()
    }

    boundsBehavior: Flickable.StopAtBounds
    // What is made ahead is asked for again by its index, which this Qt version warns of once rows are gone.
    cacheBuffer: 0
    cellHeight: cardHeight + gap
    // The view fills its width with cells; each card draws itself within the column.
    cellWidth: Math.max(1, Math.floor(width / columns))
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    T.ScrollBar.vertical: OVScrollBar { }

    header: ScreenViewHeader {
        view: grid
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
