import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// One value in the list of a combo box; the chosen one carries a check mark.
T.ItemDelegate {
    id: choice

    property bool chosen: false

    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + Theme.space8)
    leftPadding: Theme.space8
    rightPadding: Theme.space8
    hoverEnabled: true
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeDense

    Accessible.name: text
    Accessible.selected: chosen
    Accessible.onPressAction: clicked()

    contentItem: OVText {
        rightPadding: Theme.iconRow + Theme.space8
        text: choice.text
        font: choice.font
        color: Theme.ovInk

        OVIcon {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: choice.chosen
            symbol: "checkmark"
            size: Theme.iconRow
            color: Theme.ovInk
        }
    }

    background: Rectangle {
        radius: Theme.cornerField
        color: choice.down ? Theme.ovSubtle : Theme.ovHover
        opacity: choice.highlighted || choice.down ? 1 : 0
    }
}
