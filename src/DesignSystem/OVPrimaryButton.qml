import QtQuick
import Orvel.DesignSystem

/// The one button of a place that does what the place is for.
OVPressable {
    id: root

    property string symbol
    /// Whether the icon stands after the words, as an arrow does.
    property bool symbolTrailing: false
    /// The keys that do the same, shown behind the words; empty for none.
    property string keyText
    /// Colours the button as one that takes something away.
    property bool destructive: false

    readonly property color ink: destructive ? (Theme.dark ? Theme.ovCanvas : Theme.ovSurface) : Theme.onAccent
    readonly property color fill: destructive ? Theme.ovDanger : Theme.accent

    implicitHeight: Theme.buttonHeight
    leftPadding: Theme.space16
    rightPadding: Theme.space16

    background: Rectangle {
        color: root.down ? Qt.tint(root.fill, Qt.alpha(Theme.ovCanvas, 0.22))
             : root.hovered && root.enabled ? Qt.tint(root.fill, Qt.alpha(Theme.ovCanvas, 0.12)) : root.fill
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Theme.durationHover }
        }
    }
    contentItem: Item {
        implicitHeight: words.implicitHeight
        implicitWidth: words.implicitWidth + keys.space

        OVButtonContent {
            id: words
            color: root.ink
            height: parent.height
            symbol: root.symbol
            text: root.text
            trailing: root.symbolTrailing
            width: parent.width - keys.space
        }

        Rectangle {
            id: keys

            readonly property real space: visible ? width + Theme.space8 : 0

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            border.color: Qt.alpha(root.ink, 0.35)
            border.width: Theme.lineWidth
            color: Qt.alpha(root.ink, 0.1)
            height: keyLabel.implicitHeight + 4
            radius: Math.min(Theme.cornerMark, 6)
            visible: root.keyText !== ""
            width: keyLabel.implicitWidth + 10

            OVText {
                id: keyLabel
                anchors.centerIn: parent
                color: root.ink
                font.pixelSize: Math.max(10, Theme.sizeCaption - 1)
                font.weight: Font.Medium
                text: root.keyText
                Accessible.ignored: true
            }
        }
    }
}
