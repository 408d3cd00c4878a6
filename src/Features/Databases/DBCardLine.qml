import QtQuick
import Orvel.Databases
import Orvel.DesignSystem

/// A value in a card, beside the symbol of its property; the title stands alone.
Item {
    id: line

    required property RecordsViewModel records
    required property var recordID
    required property var values
    required property int column
    /// Whether the cursor is here.
    required property bool isCurrent
    required property bool ringShown
    readonly property alias cell: valueCell
    readonly property int symbolWidth: column === 0 ? 0 : Theme.sizeCaption + Theme.space8

    signal pointed()
    signal finished(key: int)

    height: Theme.rowHeight + (column === 0 ? Theme.space4 : 0)

    OVIcon {
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovInkTertiary
        size: Theme.sizeCaption
        symbol: line.records.columnsRevision >= 0 ? line.records.column(line.column).symbol : ""
        visible: line.column !== 0
        x: Theme.space8
    }

    DBValueCell {
        id: valueCell
        column: line.column
        current: line.isCurrent
        height: parent.height
        padding: Theme.space8
        recordID: line.recordID
        records: line.records
        ringShown: line.ringShown
        values: line.values
        width: parent.width - x
        x: line.symbolWidth
        onFinished: key => line.finished(key)
        onPointed: line.pointed()
    }
}
