import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A round sample of a colour; the chosen one stands in a ring with a check mark.
T.AbstractButton {
    id: swatch

    required property color color
    property bool chosen: false
    /// Whether Tab stops here. False in a group of swatches that is one stop for Tab.
    property bool tabStop: true
    /// The ink of the check mark.
    property color markColor: Theme.onAccent

    implicitWidth: Theme.chipHeight
    implicitHeight: Theme.chipHeight
    padding: 4
    focusPolicy: tabStop ? Qt.TabFocus : Qt.NoFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity

    OVAccessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()

    background: Rectangle {
        radius: width / 2
        color: "transparent"
        border.width: swatch.chosen ? 2 : Theme.lineWidth
        border.color: swatch.chosen ? swatch.color : swatch.hovered ? Theme.ovBorderStrong : "transparent"

        OVFocusRing {
            shown: swatch.visualFocus
            targetRadius: parent.radius
        }
    }

    contentItem: Rectangle {
        radius: width / 2
        color: swatch.color
        border.width: Theme.lineWidth
        border.color: Theme.ovBorder
        scale: swatch.down ? 0.92 : 1

        OVCheckMark {
            anchors.fill: parent
            shown: swatch.chosen
            color: swatch.markColor
        }
    }

    OVToolTip {
        shown: swatch.hovered || swatch.visualFocus
        text: swatch.text
    }
}
