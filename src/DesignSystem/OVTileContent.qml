import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// What stands on a tile: a label with its icon, and below it the number.
ColumnLayout {
    id: root

    property string symbol
    property string label
    property string value
    property color color: Theme.accentIcons ? Theme.accent : Theme.ovInkSecondary

    spacing: Theme.space8

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.space8

        OVIcon {
            color: root.color
            symbol: root.symbol
            visible: root.symbol !== ""
        }

        OVText {
            Layout.fillWidth: true
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: root.label
            Accessible.ignored: true
        }
    }

    OVAnimatedNumber {
        text: root.value
        Accessible.ignored: true
    }
}
