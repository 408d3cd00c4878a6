import QtQuick
import Orvel.DesignSystem

/// A group of settings: its title, and below it a card.
Column {
    id: root

    property string title
    property string symbol
    default property alias content: body.data

    /// The items have their places; those that are inside may come later in the same frame.
    signal laidOut

    spacing: Theme.space12
    width: parent?.width ?? 0
    onPositioningComplete: laidOut()

    OVSectionHeader {
        symbol: root.symbol
        text: root.title
        width: parent.width
    }

    OVCard {
        width: parent.width

        contentItem: Column {
            id: body

            spacing: Theme.space16
            onPositioningComplete: root.laidOut()
        }
    }
}
