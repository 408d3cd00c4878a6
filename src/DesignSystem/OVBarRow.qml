import QtQuick
import Orvel.DesignSystem

/// A horizontal bar of a chart, with its label and value above it.
Item {
    id: root

    required property string label
    required property string valueText
    required property color color
    required property real length
    required property real barHeight

    OVText {
        anchors.left: parent.left
        anchors.right: number.left
        anchors.rightMargin: Theme.space12
        anchors.bottom: track.top
        anchors.bottomMargin: Theme.space4
        role: OVText.Dense
        text: root.label
        Accessible.ignored: true
    }

    OVText {
        id: number
        anchors.bottom: track.top
        anchors.bottomMargin: Theme.space4
        anchors.right: parent.right
        font.weight: Font.DemiBold
        role: OVText.Dense
        text: root.valueText
        Accessible.ignored: true
    }

    Rectangle {
        id: track
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space4
        color: Theme.ovHover
        height: root.barHeight
        radius: Math.min(Theme.cornerMark, height / 2)
        width: parent.width

        Rectangle {
            color: root.color
            height: parent.height
            radius: Math.min(parent.radius, width / 2)
            visible: root.length > 0
            width: Math.min(parent.width, Math.max(Math.min(height, root.length * 4), root.length))
        }
    }
}
