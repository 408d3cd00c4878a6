import QtQuick
import Orvel.DesignSystem

/// A tab of a bar: an icon with its name beside it or below, or alone.
OVPressable {
    id: root

    required property string symbol
    property bool chosen: false
    /// The name stands below the icon instead of beside it.
    property bool upright: false
    property bool labelled: true

    readonly property color ink: chosen || hovered ? Theme.ovInk : Theme.ovInkSecondary

    implicitHeight: upright ? Theme.iconHeader + label.implicitHeight + Theme.space16 : Theme.buttonHeight
    implicitWidth: content.implicitWidth + leftPadding + rightPadding
    leftPadding: upright ? Theme.space4 : Theme.space8
    rightPadding: leftPadding
    toolTip: labelled ? "" : text
    Accessible.name: text
    OVAccessible.role: Accessible.PageTab
    Accessible.selected: chosen

    background: HoverWash {
        chosen: root.chosen && !root.upright
        hovered: root.hovered
        pressed: root.down
        radius: root.radius
    }
    contentItem: Item {
        id: content

        implicitWidth: !root.labelled ? icon.width
                     : root.upright ? Math.max(icon.width, label.implicitWidth)
                     : icon.width + Theme.space8 + label.implicitWidth

        OVIcon {
            id: icon

            color: Theme.accentIcons || (root.upright && root.chosen) ? Theme.accent : root.ink
            filled: root.chosen
            size: root.upright ? Theme.iconHeader : Theme.iconRow
            symbol: root.symbol
            x: root.upright ? Math.round((parent.width - width) / 2) : 0
            y: root.upright && root.labelled ? Theme.space8 : Math.round((parent.height - height) / 2)
        }

        OVText {
            id: label

            color: root.ink
            font.weight: root.chosen ? Font.Medium : Font.Normal
            horizontalAlignment: root.upright ? Text.AlignHCenter : Text.AlignLeft
            role: root.upright ? OVText.Caption : OVText.Dense
            text: root.text
            visible: root.labelled
            width: root.upright ? parent.width : implicitWidth
            x: root.upright ? 0 : icon.width + Theme.space8
            y: root.upright ? icon.y + icon.height + 2 : Math.round((parent.height - height) / 2)
            Accessible.ignored: true
        }
    }
}
