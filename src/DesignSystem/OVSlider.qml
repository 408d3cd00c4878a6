import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A value on a line.
T.Slider {
    id: slider

    implicitWidth: Theme.fieldWidth
    implicitHeight: Theme.rowHeight
    leftPadding: Theme.space8
    rightPadding: Theme.space8
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity

    // Two lines that end at the handle: under a translucent one, a line through it would show.
    background: Item {
        x: slider.leftPadding
        y: Math.round((slider.height - height) / 2)
        width: slider.availableWidth
        height: 4

        Rectangle {
            width: slider.handle.x - slider.leftPadding
            height: parent.height
            radius: height / 2
            color: Theme.accent
        }

        Rectangle {
            x: slider.handle.x - slider.leftPadding + slider.handle.width
            width: parent.width - x
            height: parent.height
            radius: height / 2
            color: Theme.ovBorder
        }
    }

    handle: Rectangle {
        x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
        y: Math.round((slider.height - height) / 2)
        width: 16
        height: 16
        radius: 8
        color: Theme.ovSurface
        border.width: slider.pressed ? 5 : slider.hovered ? 4 : 3
        border.color: Theme.accent

        OVFocusRing {
            shown: slider.visualFocus
            targetRadius: parent.radius
        }
    }
}
