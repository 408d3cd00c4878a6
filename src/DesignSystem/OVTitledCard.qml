import QtQuick
import Orvel.DesignSystem

/// A card with its title above what is put into it.
OVCard {
    id: root

    property string title
    property string symbol
    /// Stands at the right end of the title.
    property alias trailing: trailing.data
    default property alias body: column.data

    Accessible.name: title
    OVAccessible.role: Accessible.Grouping

    contentItem: Column {
        spacing: Theme.space12

        Item {
            height: Math.max(Theme.chipHeight, titleText.implicitHeight)
            width: parent.width

            OVIcon {
                id: icon
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.accentIcons ? Theme.accent : Theme.ovInkSecondary
                size: Theme.iconHeader
                symbol: root.symbol
            }

            OVText {
                id: titleText
                anchors.left: icon.right
                anchors.leftMargin: Theme.space8
                anchors.right: trailing.left
                anchors.rightMargin: Theme.space8
                anchors.verticalCenter: parent.verticalCenter
                role: OVText.CardTitle
                text: root.title
                Accessible.role: Accessible.Heading
            }

            Row {
                id: trailing
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.space4
            }
        }

        Column {
            id: column
            spacing: Theme.space8
            width: parent.width
        }
    }
}
