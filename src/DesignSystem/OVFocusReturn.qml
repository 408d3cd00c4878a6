import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// Gives the focus back to where it was before a popup opened, with its ring where the keyboard had put it
/// there.
QtObject {
    id: root

    required property T.Popup popup
    property Item item: null
    property int reason: Qt.OtherFocusReason

    function remember() {
        const active = popup.parent?.Window.activeFocusItem ?? null
        // A menu that is just closing hands on what it had remembered.
        const menu = active?.menu as OVMenu
        item = menu ? menu.focusReturn.item : active
        reason = menu ? menu.focusReturn.reason : active?.focusReason ?? Qt.OtherFocusReason
    }

    function giveBack() {
        const target = item
        item = null
        if (!target?.visible)
            return
        const active = target.Window.activeFocusItem
        const nowhere = !active || active === target.Window.contentItem || active === target.T.Overlay.overlay
        if (nowhere)
            target.forceActiveFocus(reason)
        else if (active === target && target.focusReason !== undefined)
            target.focusReason = reason
    }

    readonly property Connections connections: Connections {
        target: root.popup

        function onAboutToShow() {
            root.remember()
        }

        function onClosed() {
            root.giveBack()
        }
    }
}
