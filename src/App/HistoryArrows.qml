import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// The quiet pair of arrows through the places that were visited.
Row {
    id: root

    component Arrow: OVIconButton {
        required property string keys

        color: Theme.ovInkTertiary
        height: root.height
        iconSize: Theme.iconRow
        tabStop: false
        toolTip: text + "  " + keys
        width: Theme.iconButtonSize
    }

    Arrow {
        enabled: Orvel.visits.canGoBack
        keys: qsTr("Alt ←")
        symbol: "arrow.left"
        text: qsTr("Back")
        onClicked: Orvel.visits.back()
    }

    Arrow {
        enabled: Orvel.visits.canGoForward
        keys: qsTr("Alt →")
        symbol: "arrow.right"
        text: qsTr("Forward")
        onClicked: Orvel.visits.forward()
    }
}
