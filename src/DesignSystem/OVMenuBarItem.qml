import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// The title of one menu in the menu bar. "&" stands before the letter that opens it with Alt.
T.MenuBarItem {
    id: item

    implicitWidth: label.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.chipHeight - 2, label.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: Theme.space8
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeDense
    opacity: enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true

    /// Whether the pointer was pressed on it since its menu opened.
    property bool wasPressed: false

    /// Its menu was closed by a key while the pointer was over it.
    signal menuLeft()

    Accessible.name: label.text
    OVAccessible.role: Accessible.MenuItem
    Accessible.onPressAction: if (enabled) clicked()
    onPressed: wasPressed = true

    // A menu that Escape closes below a pointer at rest would leave its title lit, and the bar ready to open the next
    // menu that the pointer comes to.
    Connections {
        target: item.menu

        function onOpened() {
            item.wasPressed = false
        }
        function onClosed() {
            if (!item.highlighted || !item.hovered || item.wasPressed)
                return
            item.triggered()
            item.menuLeft()
        }
    }

    contentItem: OVText {
        id: label
        text: item.text.replace(/&(.)/g, "$1")
        font: item.font
        color: item.highlighted || item.hovered ? Theme.ovInk : Theme.ovInkSecondary
    }

    background: Rectangle {
        radius: Theme.cornerMark
        color: Theme.ovHover
        opacity: item.down || item.highlighted || item.hovered ? 1 : 0

        OVFocusRing {
            shown: item.visualFocus
            targetRadius: Theme.cornerMark
        }
    }
}
