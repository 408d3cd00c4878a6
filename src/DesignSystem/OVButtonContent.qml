pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The icon and the words of a button, centred together unless they are leading.
Item {
    id: root

    property string symbol
    property string text
    property color color: Theme.ovInk
    property int iconSize: Theme.iconRow
    property int textSize: Theme.sizeDense
    property string family: Theme.fontFamily
    property int capitalization: Font.MixedCase
    property bool filled: false
    /// Whether the icon stands after the words.
    property bool trailing: false
    /// Whether they stand at the left of a wider button.
    property bool leading: false
    readonly property int start: leading ? 0 : Math.round((width - label.width - label.offset) / 2)

    implicitHeight: Math.max(icon.active ? icon.height : 0, label.implicitHeight)
    implicitWidth: label.implicitWidth + label.offset

    OVLazyLoader {
        id: icon

        active: root.symbol !== ""
        anchors.verticalCenter: parent.verticalCenter
        height: root.iconSize
        width: root.iconSize
        x: root.trailing ? label.x + label.width + label.offset - width : root.start

        sourceComponent: OVIcon {
            color: root.color
            filled: root.filled
            size: root.iconSize
            symbol: root.symbol
        }
    }

    OVText {
        id: label

        readonly property int offset: !icon.active ? 0 : icon.width + (root.text === "" ? 0 : 6)

        anchors.verticalCenter: parent.verticalCenter
        color: root.color
        font.capitalization: root.capitalization
        font.family: root.family
        font.pixelSize: root.textSize
        font.weight: Theme.textWeight + 100
        text: root.text
        width: Math.min(implicitWidth, root.width - offset)
        x: root.start + (root.trailing ? 0 : offset)
        Accessible.ignored: true
    }
}
