import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// One entry of a menu: an optional icon or check mark, the title, its keys at the right end or the arrow of
/// a submenu.
T.MenuItem {
    id: item

    /// The product's name of an icon; empty for none.
    property string symbol: ""
    /// The keys that do the same without the menu, as the user reads them.
    property string shortcutText: ""
    /// Whether the entry takes something away.
    property bool destructive: false
    /// The text without the mark of its mnemonic.
    readonly property string title: text.replace(/&(.)/g, "$1")

    readonly property bool leading: (menu as OVMenu)?.hasLeadingColumn ?? (symbol !== "" || checkable)
    readonly property color ink: destructive ? Theme.ovDanger : Theme.ovInk

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Theme.space12
    rightPadding: Theme.space12
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeDense
    opacity: enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true

    Accessible.checkable: checkable
    Accessible.checked: checkable && checked
    Accessible.name: title
    OVAccessible.role: Accessible.MenuItem
    Accessible.onPressAction: {
        if (!enabled)
            return
        if (checkable)
            toggle()
        clicked()
    }

    contentItem: Item {
        implicitWidth: label.x + label.implicitWidth + (item.shortcutText !== "" ? Theme.space32 + keys.implicitWidth : 0)
                       + (item.subMenu ? Theme.space24 + Theme.iconRow : 0)
        implicitHeight: label.implicitHeight

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: item.symbol !== "" && !item.checked
            symbol: item.symbol
            size: Theme.iconRow
            color: item.destructive ? Theme.ovDanger : Theme.ovInkSecondary
        }

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: item.checkable && item.checked
            symbol: "checkmark"
            size: Theme.iconRow
            color: item.ink
        }

        OVText {
            id: label
            x: item.leading ? Theme.iconRow + Theme.space8 : 0
            width: (item.shortcutText !== "" ? keys.x : parent.width) - x
            anchors.verticalCenter: parent.verticalCenter
            text: item.title
            font: item.font
            color: item.ink
        }

        OVText {
            id: keys
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: item.shortcutText !== ""
            text: item.shortcutText
            role: OVText.Caption
            color: Theme.ovInkTertiary
        }
    }

    arrow: OVIcon {
        x: item.width - width - Theme.space8
        anchors.verticalCenter: parent?.verticalCenter
        visible: item.subMenu !== null
        symbol: "chevron.right"
        size: Theme.iconRow - 4
        color: Theme.ovInkTertiary
    }

    background: Rectangle {
        radius: Theme.cornerField
        color: item.down ? Theme.ovSubtle : Theme.ovHover
        opacity: item.highlighted || item.down ? 1 : 0
    }
}
