import QtQuick
import Orvel.DesignSystem

/// Cards in two columns, which stand one below the other in a narrow place.
Flow {
    id: root

    property alias first: firstColumn.data
    property alias second: secondColumn.data
    property int minimumColumnWidth: 2 * Theme.fieldWidth - Theme.space48
    readonly property bool sideBySide: width >= 2 * minimumColumnWidth + spacing
    readonly property real columnWidth: sideBySide ? Math.floor((width - spacing) / 2) : width

    spacing: Theme.space16

    Column {
        id: firstColumn
        spacing: root.spacing
        width: root.columnWidth
    }

    Column {
        id: secondColumn
        spacing: root.spacing
        width: root.columnWidth
    }
}
