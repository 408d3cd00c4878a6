import QtQuick
import Orvel.DesignSystem

/// What stands in a table or a list without records.
Item {
    id: root

    /// Whether it is a list, which says more than a line.
    required property bool isList
    required property string symbol
    required property string title
    required property string message

    implicitHeight: isList ? emptyState.height + Theme.space48 + Theme.space16 : line.height

    OVText {
        id: line
        color: Theme.ovInkSecondary
        height: implicitHeight + 2 * Theme.space16
        leftPadding: Theme.space12
        role: OVText.Dense
        text: qsTr("No records yet. Add your first one below.")
        visible: !root.isList
        width: parent.width
        wrapMode: Text.Wrap
    }

    OVEmptyState {
        id: emptyState
        message: root.message
        symbol: root.symbol
        title: root.title
        visible: root.isList
        width: parent.width - 2 * Theme.space24
        x: Theme.space24
        y: Theme.space48
    }
}
