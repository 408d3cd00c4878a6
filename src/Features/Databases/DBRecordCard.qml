pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// A record as a card: its values below each other, each beside the symbol of its property.
Rectangle {
    id: card

    required property RecordsViewModel records
    required property RecordKeys keys
    required property var recordID
    required property var values
    /// The columns that the card shows.
    required property var shownColumns
    /// Whether the cursor is in this card.
    required property bool isCurrent
    /// Whether the first character of the title stands large above it.
    property bool showsGlyph: false
    /// Whether the user types where the buttons of the card stand.
    readonly property bool titleEdited: lines.count > 0 && ((lines.itemAt(0) as DBCardLine)?.cell.editing ?? false)

    /// The pointer pressed a cell.
    signal pointed(column: int)
    /// The editing of a cell has ended with this key; 0 for none.
    signal finished(key: int)

    function cellAt(column: int): DBValueCell {
        const place = shownColumns.indexOf(column)
        return place < 0 ? null : (lines.itemAt(place) as DBCardLine)?.cell ?? null
    }

    function openMenu(): bool {
        contextMenu.openAt(Theme.space16, height / 2)
        return true
    }

    border.color: isCurrent ? Theme.ovBorderStrong : Theme.ovBorder
    border.width: Theme.lineWidth
    color: Theme.ovSurface
    implicitHeight: content.height + 2 * Theme.space4
    radius: Theme.cornerField

    HoverHandler {
        id: pointer
    }

    Column {
        id: content
        x: Theme.space4
        y: Theme.space4

        OVText {
            bottomPadding: Theme.space4
            color: Theme.ovInkTertiary
            font.pixelSize: Theme.iconEmpty
            leftPadding: Theme.space8
            text: card.showsGlyph ? card.records.glyph(card.values) || "–" : ""
            topPadding: Theme.space8
            visible: card.showsGlyph
            Accessible.ignored: true
        }

        Repeater {
            id: lines
            model: card.shownColumns

            DBCardLine {
                required property int modelData

                column: modelData
                isCurrent: card.isCurrent && card.keys.column === column
                recordID: card.recordID
                records: card.records
                ringShown: card.keys.ringShown
                values: card.values
                // A long title ends before the buttons.
                width: modelData === 0 && buttons.shown && !card.showsGlyph ? buttons.x - Theme.space4
                                                                            : card.width - 2 * Theme.space4
                onFinished: key => card.finished(key)
                onPointed: card.pointed(column)
            }
        }
    }

    OVContextMenuArea {
        id: contextMenu
        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        menu: Component {
            RecordMenu { keys: card.keys }
        }
        // qmllint enable unqualified
        onOpenMenuChanged: card.pointed(card.keys.column)
    }

    RecordActionButtons {
        id: buttons
        shown: (pointer.hovered || card.isCurrent) && !(card.titleEdited && !card.showsGlyph)
        x: card.width - width - Theme.space8
        y: card.showsGlyph ? Theme.space8
                           : Theme.space4 + Math.round((Theme.rowHeight + Theme.space4 - height) / 2)
        onDeleteRequested: card.records.remove(card.recordID)
        onDuplicateRequested: card.records.duplicate(card.recordID)
    }
}
