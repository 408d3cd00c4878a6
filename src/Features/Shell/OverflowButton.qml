import QtQuick
import Orvel.DesignSystem
import Orvel.Shell

/// Opens the overflow menu.
OVIconButton {
    id: root

    /// Whether the menu opens above the button.
    property bool opensUpwards: false

    symbol: "ellipsis"
    text: qsTr("More")
    toolTip: menu.visible ? "" : text
    Accessible.role: Accessible.ButtonMenu
    onClicked: menu.visible ? menu.close() : menu.open()

    ShellOverflowMenu {
        id: menu

        x: root.width - width
        y: root.opensUpwards ? -height - Theme.space8 : root.height + Theme.space8
    }
}
