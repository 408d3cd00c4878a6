pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The buttons that a record shows under the pointer and the cursor. They are made when they are first shown.
OVLazyLoader {
    id: root

    required property bool shown

    signal duplicateRequested()
    signal deleteRequested()

    active: shown
    height: Theme.iconButtonSize
    width: 2 * Theme.iconButtonSize
    z: 2

    sourceComponent: Rectangle {
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        radius: Theme.cornerField

        Row {
            OVIconButton {
                iconSize: Theme.iconRow
                symbol: "plus.square.on.square"
                tabStop: false
                text: qsTr("Duplicate")
                onClicked: root.duplicateRequested()
            }

            OVIconButton {
                iconSize: Theme.iconRow
                symbol: "trash"
                tabStop: false
                text: qsTr("Delete")
                onClicked: root.deleteRequested()
            }
        }
    }
}
