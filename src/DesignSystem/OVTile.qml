import QtQuick
import QtQuick.Layouts
import Orvel.DesignSystem

/// One number of a row of numbers, with its label and icon.
OVCard {
    id: root

    property string symbol
    property string label
    property string value
    property color color: Theme.accentIcons ? Theme.accent : Theme.ovInkSecondary

    implicitWidth: 160
    Accessible.name: label + ", " + value
    OVAccessible.role: Accessible.Grouping

    contentItem: ColumnLayout {
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
            }
        }

        OVAnimatedNumber {
            text: root.value
        }
    }
}
