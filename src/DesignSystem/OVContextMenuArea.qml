import QtQuick
import Orvel.DesignSystem

/// Opens a menu at the pointer on a right click, and at the lower edge of its parent on the Menu key or
/// Shift+F10 through handleKey(). The menu is made when it is first asked for, so that a list of many rows
/// costs nothing.
Item {
    id: area

    /// Makes the OVMenu.
    required property Component menu
    /// What a right click gives the focus to before the menu opens, as a text field needs; null for nothing.
    property Item focusTarget: null
    /// The menu once it was asked for.
    property OVMenu openMenu: null

    function openAt(x: real, y: real) {
        if (focusTarget && !focusTarget.activeFocus)
            focusTarget.forceActiveFocus(Qt.MouseFocusReason)
        if (!openMenu)
            openMenu = menu.createObject(area) as OVMenu
        openMenu.popup(area, x, y)
    }

    function handleKey(event: KeyEvent) {
        if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)) {
            openAt(Theme.space8, height)
            event.accepted = true
        }
    }

    anchors.fill: parent

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: eventPoint => area.openAt(eventPoint.position.x, eventPoint.position.y)
    }
}
