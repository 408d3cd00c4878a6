import QtQuick
import Orvel.DesignSystem

/// One number of a row of numbers, with its label and icon.
OVCard {
    id: root

    property alias symbol: content.symbol
    property alias label: content.label
    property alias value: content.value
    property alias color: content.color

    implicitWidth: 160
    Accessible.name: label + ", " + value
    OVAccessible.role: Accessible.Grouping

    contentItem: OVTileContent {
        id: content
    }
}
