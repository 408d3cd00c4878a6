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
        const menu = active?.menu as OVMenu
        const bar = popup.parent?.menuBar as OVMenuBar
        if (bar) {
            item = bar.keys.origin
            reason = bar.keys.originReason
        } else if (menu) {
            // A menu that is just closing hands on what it had remembered.
            item = menu.focusReturn.item
            reason = menu.focusReturn.reason
        } else {
            item = active
            reason = active?.focusReason ?? Qt.OtherFocusReason
        }
    }

    function giveBack() {
        const target = item
        item = null
        if (!target?.visible)
            return
        const active = target.Window.activeFocusItem
        const nowhere = !active || active === target.Window.contentItem || active === target.T.Overlay.overlay
                        || active instanceof OVMenuBar
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
