import QtQuick
import Orvel.DesignSystem

/// A template that the program brings, in the sheet for a new project.
OVCardListRow {
    id: line

    required property string templateID
    required property string icon
    required property string name
    required property string details

    Accessible.name: qsTr("%1, %2").arg(name).arg(details)
    Accessible.role: Accessible.Button
    Keys.onSpacePressed: activated()

    OVEmoji {
        id: emoji
        anchors.verticalCenter: parent.verticalCenter
        size: Theme.iconTile
        text: line.icon
    }

    Column {
        anchors.left: emoji.right
        anchors.leftMargin: Theme.space12
        anchors.right: arrow.left
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space4

        OVText {
            font.weight: Font.DemiBold
            text: line.name
            width: parent.width
            Accessible.ignored: true
        }

        OVText {
            color: Theme.ovInkSecondary
            role: OVText.Dense
            text: line.details
            width: parent.width
            Accessible.ignored: true
        }
    }

    OVIcon {
        id: arrow
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.ovInkTertiary
        size: Theme.iconRow
        symbol: "chevron.right"
    }
}
