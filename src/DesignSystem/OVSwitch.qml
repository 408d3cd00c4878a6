import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A switch with its text, and a quieter second line where a setting needs explaining. In a settings row the
/// switch itself stands at the right end.
T.Switch {
    id: control

    property string detail: ""
    property bool indicatorTrailing: false

    /// Does what a press by the pointer does.
    function activate() {
        if (!enabled)
            return
        toggle()
        toggled()
        clicked()
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding,
                             implicitIndicatorHeight + topPadding + bottomPadding)
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    font.family: Theme.fontFamily
    font.pixelSize: Theme.sizeBody
    spacing: Theme.space8

    Accessible.name: text
    Accessible.description: detail
    Accessible.onPressAction: activate()
    Accessible.onToggleAction: activate()

    contentItem: OVLabelPair {
        leftPadding: !control.indicatorTrailing ? control.indicator.width + (control.text !== "" ? control.spacing : 0) : 0
        rightPadding: control.indicatorTrailing ? control.indicator.width + Theme.space16 : 0
        title: control.text
        detail: control.detail
        font: control.font
    }

    indicator: Rectangle {
        id: track
        readonly property int inset: 3

        implicitWidth: Math.round(implicitHeight * 1.8)
        implicitHeight: Theme.iconRow + 4
        x: control.indicatorTrailing ? control.width - width - control.rightPadding : control.leftPadding
        y: Math.round((control.height - height) / 2)
        radius: height / 2
        color: control.checked ? Theme.accent : control.hovered ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: control.checked ? 0 : Theme.lineWidth
        border.color: Theme.ovBorderStrong

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }

        Rectangle {
            x: track.inset + control.visualPosition * (track.width - width - 2 * track.inset)
            y: track.inset
            width: height + (control.down ? track.inset : 0)
            height: track.height - 2 * track.inset
            radius: height / 2
            color: control.checked ? Theme.onAccent : Theme.dark ? Theme.ovInkSecondary : Theme.ovSurface
            border.width: control.checked || Theme.dark ? 0 : Theme.lineWidth
            border.color: Theme.ovBorderStrong

            Behavior on x {
                enabled: !control.pressed
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
            Behavior on width {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }
        }

        OVFocusRing {
            shown: control.visualFocus
            targetRadius: track.radius
        }
    }
}
