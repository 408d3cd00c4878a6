pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.Databases
import Orvel.DesignSystem

/// The records as cards in a grid, made only where they are seen. The cards are one stop for Tab: Up and Down go from
/// value to value and on to the card below, Left and Right from card to card.
FocusScope {
    id: root

    required property RecordsViewModel records
    readonly property int shownCount: Math.min(3, records.columnCount)
    readonly property var shownColumns: Array.from({ length: shownCount }, (value, column) => column)
    readonly property int cardHeight: Theme.iconEmpty * 1.4 + shownCount * (Theme.rowHeight + Theme.space4)
                                      + 2 * Theme.space8

    function cell(): DBValueCell {
        return (grid.currentItem as DBRecordCard)?.cellAt(recordKeys.column) ?? null
    }

    function show(index: int, column: int) {
        grid.currentIndex = Math.min(grid.count - 1, Math.max(0, index))
        recordKeys.column = Math.max(0, Math.min(shownCount - 1, column))
        grid.positionViewAtIndex(grid.currentIndex, GridView.Contain)
    }

    function move(cards: int, steps: int): bool {
        recordKeys.ringShown = true
        const next = recordKeys.column + steps
        if (cards !== 0 || (next >= 0 && next < shownCount))
            show(grid.currentIndex + cards, next)
        else if (grid.currentIndex + steps * grid.columns >= 0 && grid.currentIndex + steps * grid.columns < grid.count)
            show(grid.currentIndex + steps * grid.columns, steps > 0 ? 0 : shownCount - 1)
        return true
    }

    function press(event: KeyEvent): bool {
        switch (event.key) {
        case Qt.Key_Left: return move(-1, 0)
        case Qt.Key_Right: return move(1, 0)
        case Qt.Key_Up: return move(0, -1)
        case Qt.Key_Down: return move(0, 1)
        case Qt.Key_PageUp: return move(-grid.columns, 0)
        case Qt.Key_PageDown: return move(grid.columns, 0)
        case Qt.Key_Home: return move(-grid.count, 0)
        case Qt.Key_End: return move(grid.count, 0)
        case Qt.Key_Menu: return (grid.currentItem as DBRecordCard)?.openMenu() ?? false
        }
        return recordKeys.press(event)
    }

    function editingFinished(key: int) {
        if (key === 0)
            return
        grid.forceActiveFocus(Qt.OtherFocusReason)
        recordKeys.ringShown = true
        if (key === Qt.Key_Tab || key === Qt.Key_Down || key === Qt.Key_Return || key === Qt.Key_Enter)
            move(0, 1)
        else if (key === Qt.Key_Backtab || key === Qt.Key_Up)
            move(0, -1)
    }

    function addRecord() {
        const row = records.rowOf(records.addRecord())
        grid.forceLayout()
        show(row, 0)
        grid.forceActiveFocus(Qt.OtherFocusReason)
        recordKeys.openRequested("")
    }

    RecordKeys {
        id: recordKeys
        records: root.records
        row: grid.currentIndex
        onNewRequested: root.addRecord()
        onOpenRequested: typed => {
            grid.positionViewAtIndex(grid.currentIndex, GridView.Contain)
            grid.forceLayout()
            root.cell()?.open(typed)
        }
    }

    Connections {
        target: root.records
        function onRevealed(row, column) {
            grid.forceActiveFocus(Qt.OtherFocusReason)
            recordKeys.ringShown = true
            root.show(row, Math.max(0, column))
        }
    }

    GridView {
        id: grid

        readonly property QtObject editTarget: recordKeys
        readonly property int columns: Math.max(1, Math.floor(width / Math.round(232 * Theme.fontScale)))

        activeFocusOnTab: count > 0 || activeFocus
        anchors.fill: parent
        // Room for the last tile where it begins a row of its own.
        bottomMargin: count % columns === 0 ? cellHeight : 0
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 0
        cellHeight: root.cardHeight + Theme.space12
        cellWidth: Math.floor(width / columns)
        clip: true
        currentIndex: -1
        focus: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: root.records.rows
        Accessible.name: root.records.describe(recordKeys.row, recordKeys.column)
        Accessible.role: Accessible.Table
        T.ScrollBar.vertical: OVScrollBar { }

        Keys.onPressed: event => event.accepted = !(root.cell()?.editing ?? false) && root.press(event)
        // The view would give it the focus, of which assistive technology knows nothing.
        onCurrentItemChanged: {
            if (currentItem)
                currentItem.focus = false
        }
        onActiveFocusChanged: {
            if (!activeFocus)
                return
            // Without records it would hold the keyboard where nobody sees it.
            if (count === 0)
                return addTile.forceActiveFocus(Qt.TabFocusReason)
            recordKeys.ringShown = true
            if (currentIndex < 0)
                root.show(0, 0)
        }

        delegate: DBRecordCard {
            required property int index

            height: root.cardHeight
            isCurrent: GridView.isCurrentItem && grid.activeFocus
            keys: recordKeys
            records: root.records
            shownColumns: root.shownColumns
            showsGlyph: true
            width: grid.cellWidth - Theme.space12
            onFinished: key => root.editingFinished(key)
            onPointed: column => {
                root.show(index, column)
                grid.forceActiveFocus(Qt.MouseFocusReason)
                recordKeys.ringShown = false
            }
        }
        OVPressable {
            id: addTile
            height: root.cardHeight
            parent: grid.contentItem
            text: qsTr("New record")
            width: grid.cellWidth - Theme.space12
            x: grid.count % grid.columns * grid.cellWidth
            y: Math.floor(grid.count / grid.columns) * grid.cellHeight
            onClicked: root.addRecord()

            background: Rectangle {
                border.color: addTile.hovered ? Theme.ovBorderStrong : Theme.ovBorder
                border.width: Theme.lineWidth
                color: addTile.hovered ? Theme.ovHover : "transparent"
                radius: Theme.cornerField
            }
            contentItem: OVButtonContent {
                color: Theme.ovInkSecondary
                symbol: "plus"
                text: addTile.text
            }
        }
    }
}
