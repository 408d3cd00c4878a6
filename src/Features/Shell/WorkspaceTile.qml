import QtQuick
import Orvel.DesignSystem

/// The workspace's emoji on a small tile.
Rectangle {
    id: root

    property alias emoji: glyph.text

    border.color: Theme.ovBorder
    border.width: Theme.lineWidth
    color: Theme.ovSurface
    implicitHeight: Theme.iconButtonSize
    implicitWidth: Theme.iconButtonSize
    radius: Theme.cornerField

    Text {
        id: glyph

        anchors.centerIn: parent
        font.family: Theme.fontFamily
        font.pixelSize: Theme.iconRow
        fontSizeMode: Text.HorizontalFit
        horizontalAlignment: Text.AlignHCenter
        minimumPixelSize: Theme.iconRow / 2
        textFormat: Text.PlainText
        width: parent.width - Theme.space8
        Accessible.ignored: true
    }
}
