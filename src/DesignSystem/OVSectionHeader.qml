import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// The small title over a group. What is put into it stands at its right end.
RowLayout {
    id: root

    property string text
    property string symbol
    default property alias trailing: trailing.data

    spacing: Theme.space8
    Accessible.name: text
    Accessible.role: Accessible.Heading

    OVIcon {
        size: Theme.iconRow
        symbol: root.symbol
        visible: root.symbol !== ""
    }

    OVText {
        Layout.fillWidth: true
        role: OVText.Section
        text: root.text
        Accessible.ignored: true
    }

    RowLayout {
        id: trailing

        spacing: Theme.space8
    }
}
