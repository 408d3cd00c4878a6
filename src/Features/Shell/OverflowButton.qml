import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// Opens the overflow menu.
OVIconButton {
    id: root

    symbol: "ellipsis"
    text: qsTr("More")
    toolTip: menu.visible ? "" : text
    OVAccessible.role: Accessible.ButtonMenu
    onClicked: menu.visible ? menu.close() : menu.open()

    ShellOverflowMenu {
        id: menu

        x: root.width - width
        y: root.height + Theme.space8
    }
}
