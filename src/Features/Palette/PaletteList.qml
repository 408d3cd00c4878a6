pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem
import Orvel.Palette

/// What the palette offers. The focus stays in the field; the highlight is moved by its keys, and by the pointer once
/// that really moves.
ListView {
    id: list

    required property PaletteViewModel finder
    readonly property int rowHeight: Theme.fieldHeight
    readonly property int headerHeight: Theme.chipHeight
    /// Above the header of every group but the first.
    readonly property int groupGap: Theme.space8
    readonly property int naturalHeight: finder.count === 0 ? 0 : finder.count * rowHeight
                                         + finder.groupCount * (headerHeight + groupGap) - groupGap
                                         + topMargin + bottomMargin

    /// Moves the highlight as the key says; false for a key that is the field's.
    function moveHighlight(event: KeyEvent): bool {
        const page = Math.max(1, Math.floor(height / rowHeight) - 1)
        // The ends of the text are the field's, as long as there is a text.
        const isWhole = finder.query === "" || (event.modifiers & Qt.ControlModifier)
        switch (event.key) {
        case Qt.Key_Up:
        case Qt.Key_Backtab:
            finder.step(-1)
            return true
        case Qt.Key_Down:
        case Qt.Key_Tab:
            finder.step(1)
            return true
        case Qt.Key_PageUp:
            finder.jump(-page)
            return true
        case Qt.Key_PageDown:
            finder.jump(page)
            return true
        case Qt.Key_Home:
            if (isWhole)
                finder.jump(-count)
            return isWhole
        case Qt.Key_End:
            if (isWhole)
                finder.jump(count)
            return isWhole
        }
        return false
    }

    /// Brings the highlighted row into view.
    function reveal() {
        if (finder.highlighted <= 0) {
            positionViewAtBeginning()
            contentY = originY - topMargin
        } else if (finder.highlighted === count - 1) {
            positionViewAtEnd()
            contentY = Math.max(originY - topMargin, originY + contentHeight + bottomMargin - height)
        } else {
            positionViewAtIndex(finder.highlighted, ListView.Contain)
        }
    }

    boundsBehavior: Flickable.StopAtBounds
    // Every key fills the rows anew: none that nobody sees.
    cacheBuffer: 0
    bottomMargin: Theme.space8
    clip: contentHeight + topMargin + bottomMargin > height
    currentIndex: -1
    keyNavigationEnabled: false
    model: finder.rows
    reuseItems: true
    topMargin: Theme.space8
    Accessible.name: qsTr("Results")
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: OVScrollBar { }

    delegate: PaletteRow {
        groupGap: index > 0 ? list.groupGap : 0
        headerHeight: list.headerHeight
        highlighted: index === list.finder.highlighted
        rowHeight: list.rowHeight
        width: list.width
        onTriggered: list.finder.open(index)
    }

    Connections {
        target: list.finder

        function onRowsChanged() {
            list.reveal()
        }
        function onHighlightedChanged() {
            list.reveal()
        }
    }

    // A pointer that rests while rows move below it means none of them.
    HoverHandler {
        id: pointer

        property point rest

        onHoveredChanged: rest = point.scenePosition
        onPointChanged: {
            const place = point.scenePosition
            if (place.x === rest.x && place.y === rest.y)
                return
            rest = place
            const y = list.contentY + list.mapFromItem(null, place).y
            const row = list.itemAt(list.width / 2, y) as PaletteRow
            if (row && y - row.y >= row.height - list.rowHeight)
                list.finder.highlighted = row.index
        }
    }
}
