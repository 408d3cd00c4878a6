import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// Gives the focus back to where it was before a popup opened, with its ring where the keyboard had put it
/// there. If that is gone, such as the row that the popup moved away, what was around it has the focus.
QtObject {
    id: root

    required property T.Popup popup
    property Item item: null
    property int reason: Qt.OtherFocusReason
    /// The scopes of focus around the item, the innermost first.
    property var scopes: []

    function remember() {
        const active = popup.parent?.Window.activeFocusItem ?? null
        const menu = (active as T.MenuItem)?.menu as OVMenu
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
        scopes = []
        for (let around = item?.parent; around; around = around.parent) {
            if (around instanceof FocusScope || around instanceof Flickable)
                scopes.push(around)
        }
    }

    function giveBack() {
        const target = item?.visible ? item : scopes.find(scope => scope.visible)
        item = null
        scopes = []
        if (!target)
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
