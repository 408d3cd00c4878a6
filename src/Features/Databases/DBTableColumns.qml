import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// Where the columns of a table stand, for its header and its rows alike, and which of them are made: those in sight.
/// The title stays at the left edge unless it would leave too little room beside it.
QtObject {
    id: root

    required property RecordsViewModel records
    /// How far the table is scrolled sideways, and what is seen of it.
    required property real offset
    required property real viewportWidth

    /// Whether the title is wide and all else narrow, as in a list.
    property bool listLike: false

    readonly property int titleWidth: listLike ? Math.max(Math.round(240 * Theme.fontScale), Math.round(viewportWidth * 0.4))
                                               : Math.round(240 * Theme.fontScale)
    readonly property int width: Math.round((listLike ? 148 : 168) * Theme.fontScale)
    /// Of the buttons that a record shows at the right edge. Behind the last column they have room of their own.
    readonly property int actionsWidth: 2 * Theme.iconButtonSize + 2 * Theme.space8
    readonly property int contentWidth: titleWidth + Math.max(0, records.columnCount - 1) * width + actionsWidth
    readonly property bool isPinned: viewportWidth >= titleWidth + width + actionsWidth
    readonly property real pin: isPinned ? offset : 0
    /// Columns beside the title that are made at a time.
    readonly property int slots: Math.max(0, Math.min(records.columnCount - 1,
                                                      Math.ceil(viewportWidth / width) + 1))
    readonly property int first: Math.max(1, Math.floor((isPinned ? offset : offset - titleWidth) / width) + 1)

    /// The column in a slot. A column keeps its slot while it is in sight.
    function columnAt(slot: int): int {
        const steps = (slot - (first - 1)) % slots
        return first + (steps < 0 ? steps + slots : steps)
    }

    function x(column: int): int {
        return column === 0 ? 0 : titleWidth + (column - 1) * width
    }

    function widthOf(column: int): int {
        return column === 0 ? titleWidth : width
    }

    /// How far to scroll so that the column is in sight, and clear of the buttons.
    function offsetFor(column: int): real {
        if (column === 0)
            return isPinned ? offset : 0
        const start = x(column) - (isPinned ? titleWidth : 0)
        const end = x(column) + width - (viewportWidth - actionsWidth)
        return Math.max(0, Math.min(contentWidth - viewportWidth, Math.min(start, Math.max(end, offset))))
    }
}
