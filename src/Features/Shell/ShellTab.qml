import QtQuick
import Orvel.DesignSystem

/// A tab of a bar or the dock: an icon with its name beside it or below, or alone.
OVPressable {
    id: root

    required property string symbol
    property bool chosen: false
    /// The name stands below the icon instead of beside it.
    property bool upright: false
    property bool labelled: Theme.tabBarLabels
    /// As in the dock: it rises a little under the pointer, and a dot marks the chosen one.
    property bool lifts: false

    readonly property color ink: chosen || hovered ? Theme.ovInk : Theme.ovInkSecondary
    readonly property bool raised: lifts && (hovered || visualFocus) && !down

    implicitHeight: !upright ? Theme.buttonHeight
                  : Theme.iconHeader + Theme.space24 + (labelled ? label.implicitHeight - Theme.space8 : 0)
    implicitWidth: content.implicitWidth + leftPadding + rightPadding
    leftPadding: upright ? Theme.space4 : Theme.space8
    pressedScale: lifts ? 0.92 : 0.98
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
            scale: root.raised ? 1.12 : 1
            size: root.upright ? Theme.iconHeader : Theme.iconRow
            symbol: root.symbol
            x: root.upright ? Math.round((parent.width - width) / 2) : 0
            y: (root.upright && root.labelled ? Theme.space8 : Math.round((parent.height - height) / 2))
               - (root.raised ? 2 : 0)

            Behavior on scale {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
            Behavior on y {
                enabled: root.lifts
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
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
            y: root.upright ? Theme.space8 + icon.height + 2 : Math.round((parent.height - height) / 2)
            Accessible.ignored: true
        }

        Rectangle {
            anchors.bottom: parent.bottom
            anchors.bottomMargin: root.labelled ? 2 : Theme.space4
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.accent
            height: width
            opacity: root.lifts && root.chosen ? 1 : 0
            radius: width / 2
            width: Theme.space4

            Behavior on opacity {
                NumberAnimation { duration: Theme.durationScreen }
            }
        }
    }
}
