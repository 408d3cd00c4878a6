import QtQuick
import Orvel.DesignSystem

/// A button that makes the text larger or smaller, shown as a letter of that size.
OVPressable {
    id: root

    property int letterSize: Theme.sizeBody

    implicitHeight: Theme.iconButtonSize
    implicitWidth: Theme.iconButtonSize
    pressedScale: 0.94
    toolTip: text

    contentItem: OVText {
        Accessible.ignored: true
        color: root.hovered && root.enabled ? Theme.ovInk : Theme.ovInkSecondary
        elide: Text.ElideNone
        font.pixelSize: root.letterSize
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("A")
    }
}
