pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A row of a `ScreenList`: it stands in the screen's column, appears and collapses, and takes the focus as a
/// whole. Its parts are no stops for Tab; keys that the row doesn't know come to `Keys` of the derived row.
///
/// A row that is removed under the pointer keeps its place until the pointer moves, so that a second click meets
/// nothing else.
FocusScope {
    id: row

    required property int index
    property int rowHeight: Theme.rowHeight
    /// Whether a row that is added to a shown list fades in.
    property bool fadesIn: true
    /// Whether the row collapses when it is removed.
    property bool collapses: true
    readonly property ScreenList list: ListView.view as ScreenList
    readonly property bool visualFocus: activeFocus && list.keys.ringShown
    readonly property alias hovered: pointer.hovered
    default property alias content: appear.content
    property OVRemoval leaving: null
    property NumberAnimation entering: null

    /// What Shift+Tab does here; false to leave it to others.
    function leaveBackwards(): bool {
        list.exitBackwards()
        return true
    }

    /// What Tab does here; false to leave it to others.
    function leaveForwards(): bool {
        return list.exitForwards()
    }

    /// Takes back what coming and going have done to the row, which the view may use for another one.
    function restore() {
        if (entering)
            entering.complete()
        if (!leaving)
            return
        leaving.end()
        leaving.destroy()
        leaving = null
        appear.opacity = 1
        clip = false
        height = Qt.binding(() => rowHeight)
    }

    activeFocusOnTab: activeFocus
    height: rowHeight
    width: ListView.view?.width ?? 0

    onActiveFocusChanged: {
        if (activeFocus)
            list.currentIndex = index
    }
    ListView.onAdd: {
        list.rowAdded()
        if (fadesIn && !list.opening) {
            if (!entering)
                entering = entry.createObject(row) as NumberAnimation
            entering.restart()
        }
    }
    ListView.onRemove: {
        if (!collapses)
            return
        row.ListView.delayRemove = true
        leaving = removal.createObject(row) as OVRemoval
        leaving.begin()
    }

    // Neither pointer nor assistive technology meets a row that waits to be used again.
    ListView.onPooled: {
        visible = false
        restore()
    }
    ListView.onReused: visible = true

    Keys.onBacktabPressed: event => event.accepted = leaveBackwards()
    Keys.onTabPressed: event => event.accepted = leaveForwards()

    OVAppear {
        id: appear
        animated: (row.list?.opening ?? false) && row.list.staggered
        height: row.rowHeight
        index: Math.max(0, row.index)
        width: row.list?.columnWidth ?? 0
        x: row.list?.columnX ?? 0

        HoverHandler { id: pointer }
    }

    // Made when they are needed: a list makes a screenful of rows within one frame.
    Component {
        id: entry

        NumberAnimation {
            target: appear
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.durationScreen
        }
    }

    Component {
        id: removal

        OVRemoval {
            content: appear
            hover: pointer
            onEnded: collapse.stop()
            onReleased: collapse.start()

            Connections {
                target: row.list
                function onRowAdded() {
                    row.ListView.delayRemove = false
                }
            }

            SequentialAnimation {
                id: collapse
                PropertyAction { target: row; property: "clip"; value: true }
                NumberAnimation { target: row; property: "height"; to: 0; duration: Theme.durationRemoval; easing.type: Easing.OutCubic }
                PropertyAction { target: row; property: "ListView.delayRemove"; value: false }
            }
        }
    }
}
