import QtQuick
import Orvel.DesignSystem

/// One thing that the program offers.
Item {
    id: root

    required property string symbol
    required property string title
    required property string detail

    implicitHeight: Math.max(tile.height, words.height)

    Rectangle {
        id: tile

        anchors.verticalCenter: parent.verticalCenter
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSubtle
        height: width
        radius: Theme.cornerCard
        width: Theme.iconTile + Theme.space24

        OVIcon {
            anchors.centerIn: parent
            color: Theme.ovInk
            size: Theme.iconTile
            symbol: root.symbol
        }
    }

    Column {
        id: words

        anchors.left: tile.right
        anchors.leftMargin: Theme.space16
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        OVText {
            font.weight: Font.DemiBold
            text: root.title
            width: parent.width
            wrapMode: Text.Wrap
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: root.detail
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
}
