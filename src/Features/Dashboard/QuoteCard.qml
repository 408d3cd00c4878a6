import QtQuick
import Orvel.Dashboard
import Orvel.DesignSystem

/// A thought for the day, and a way to another one.
OVCard {
    id: root

    required property DashboardViewModel viewModel

    padding: Theme.space24
    Accessible.name: qsTr("%1, by %2").arg(viewModel.quoteText).arg(viewModel.quoteAuthor)
    OVAccessible.role: Accessible.Grouping

    contentItem: Item {
        implicitHeight: Math.max(words.implicitHeight, shuffle.height)

        OVIcon {
            id: mark
            color: Theme.accentIcons ? Theme.accent : Theme.ovInkTertiary
            filled: true
            size: Theme.iconTile
            symbol: "quote.opening"
        }

        Column {
            id: words
            anchors.left: mark.right
            anchors.leftMargin: Theme.space16
            anchors.right: shuffle.left
            anchors.rightMargin: Theme.space16
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.space8

            OVText {
                elide: Text.ElideNone
                font.family: Theme.serifFamily
                font.pixelSize: Theme.sizeCardTitle
                text: root.viewModel.quoteText
                width: parent.width
                wrapMode: Text.Wrap
            }

            OVText {
                color: Theme.ovInkSecondary
                role: OVText.Dense
                text: root.viewModel.quoteAuthor
                width: parent.width
            }
        }

        OVIconButton {
            id: shuffle
            anchors.right: parent.right
            anchors.top: parent.top
            symbol: "shuffle"
            text: qsTr("Another quote")
            onClicked: root.viewModel.shuffleQuote()
        }
    }
}
