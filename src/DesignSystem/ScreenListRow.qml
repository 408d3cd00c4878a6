import QtQuick
import Orvel.DesignSystem

/// A row of a `ScreenList`: it stands in the screen's column, appears and collapses, and takes the focus as a
/// whole. Its parts are no stops for Tab; keys that the row doesn't know come to `Keys` of the derived row.
FocusScope {
    id: row

    required property int index
    property int rowHeight: Theme.rowHeight
    /// Whether a row that is added to a shown list fades in.
    property bool fadesIn: true
    readonly property ScreenList list: ListView.view as ScreenList
    readonly property bool visualFocus: activeFocus && list.focusVisible
    readonly property alias hovered: pointer.hovered
    default property alias content: appear.content

    /// What Shift+Tab does here; false to leave it to others.
    function leaveBackwards(): bool {
        list.leftBackwards()
        return true
    }

    activeFocusOnTab: activeFocus
    height: rowHeight
    width: ListView.view?.width ?? 0

    onActiveFocusChanged: {
        if (activeFocus)
            list.currentIndex = index
    }
    ListView.onAdd: {
        if (fadesIn && !list.opening)
            entry.start()
    }
    ListView.onRemove: removal.start()

    Keys.onBacktabPressed: event => event.accepted = leaveBackwards()

    OVAppear {
        id: appear
        animated: row.list?.opening ?? false
        height: row.rowHeight
        index: Math.max(0, row.index)
        width: row.list?.columnWidth ?? 0
        x: row.list?.columnX ?? 0

        HoverHandler { id: pointer }
    }

    NumberAnimation {
        id: entry
        target: appear
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.durationScreen
    }

    SequentialAnimation {
        id: removal
        PropertyAction { target: row; property: "ListView.delayRemove"; value: true }
        PropertyAction { target: row; property: "clip"; value: true }
        ParallelAnimation {
            NumberAnimation { target: row; property: "height"; to: 0; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
            NumberAnimation { target: row; property: "opacity"; to: 0; duration: Theme.durationRemoval }
        }
        PropertyAction { target: row; property: "ListView.delayRemove"; value: false }
    }
}
