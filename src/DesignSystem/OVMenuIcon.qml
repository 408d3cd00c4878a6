import QtQuick
import Orvel.DesignSystem

/// An icon button that opens a menu below itself, flush with its right edge. Down opens it too.
OVIconButton {
    id: root

    required property OVMenu menu

    function open() {
        menu.measure()
        menu.openBeside(root, width - menu.width, -Theme.space4, height + Theme.space4)
        menu.currentIndex = visualFocus ? 0 : -1
    }

    toolTip: menu.visible ? "" : text
    OVAccessible.role: Accessible.ButtonMenu
    Keys.onDownPressed: open()
    onClicked: open()

    background: HoverWash {
        chosen: root.menu.visible
        hovered: root.hovered
        pressed: root.down
        radius: root.radius
    }
}
