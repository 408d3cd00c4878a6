import QtQuick
import Orvel.DesignSystem

/// One key of the keyboard.
Rectangle {
    id: root

    property alias text: label.text

    border.color: Theme.ovBorderStrong
    border.width: Theme.lineWidth
    color: Theme.ovSubtle
    implicitHeight: Math.max(20, label.implicitHeight + 4)
    implicitWidth: Math.max(implicitHeight, label.implicitWidth + 10)
    radius: Math.min(Theme.cornerMark, 6)

    // The lower edge of the key.
    Rectangle {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.lineWidth
        color: Theme.ovBorder
        height: Theme.lineWidth
        width: parent.width - 2 * parent.radius
        x: parent.radius
    }

    OVText {
        id: label

        anchors.centerIn: parent
        color: Theme.ovInkSecondary
        font.pixelSize: Math.max(10, Theme.sizeCaption - 1)
        font.weight: Font.Medium
    }
}
