import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// A page as one line of a card; Return and a click open it.
OVCardListRow {
    id: line

    required property var pageID
    required property string icon
    required property string title
    required property string dateText

    Accessible.name: title + ", " + dateText
    onActivated: Orvel.ui.selectPage(pageID)

    OVEmoji {
        id: emoji
        anchors.verticalCenter: parent.verticalCenter
        size: Theme.iconButton
        text: line.icon
    }

    OVText {
        anchors.left: emoji.right
        anchors.leftMargin: Theme.space12
        anchors.right: date.left
        anchors.rightMargin: Theme.space12
        anchors.verticalCenter: parent.verticalCenter
        text: line.title
        Accessible.ignored: true
    }

    OVText {
        id: date
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        role: OVText.Caption
        text: line.dateText
        Accessible.ignored: true
    }
}
