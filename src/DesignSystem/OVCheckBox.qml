import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A check box whose mark draws in.
T.CheckBox {
    id: control

    property string detail: ""

    /// Does what a press by the pointer does.
    function activate() {
        if (!enabled)
            return
        toggle()
        toggled()
        clicked()
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding)
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
        leftPadding: control.indicator.width + (control.text !== "" ? control.spacing : 0)
        title: control.text
        detail: control.detail
        font: control.font
    }

    indicator: Rectangle {
        id: box
        readonly property bool filled: control.checkState !== Qt.Unchecked

        implicitWidth: Theme.iconRow + 2
        implicitHeight: Theme.iconRow + 2
        x: control.leftPadding
        y: Math.round((control.height - height) / 2)
        radius: Math.min(Theme.cornerMark, height / 3)
        color: filled ? Theme.accent : control.down || control.hovered ? Theme.ovHover : Theme.ovSurface
        border.width: filled ? 0 : Theme.lineWidth
        border.color: control.hovered ? Theme.ovInkSecondary : Theme.ovInkTertiary
        scale: control.down ? 0.94 : 1

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }

        OVCheckMark {
            anchors.fill: parent
            shown: control.checkState === Qt.Checked
        }

        Rectangle {
            anchors.centerIn: parent
            visible: control.checkState === Qt.PartiallyChecked
            width: parent.width / 2
            height: 2
            radius: 1
            color: Theme.onAccent
        }

        OVFocusRing {
            shown: control.visualFocus
            targetRadius: box.radius
        }
    }
}
