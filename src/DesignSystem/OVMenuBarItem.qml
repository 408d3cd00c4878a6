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

    Accessible.name: label.text
    OVAccessible.role: Accessible.MenuItem
    Accessible.onPressAction: if (enabled) clicked()

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
