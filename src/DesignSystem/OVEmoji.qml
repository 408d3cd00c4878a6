import QtQuick
import Orvel.DesignSystem

/// An emoji, or a short text in its place, as large as its square.
Text {
    property int size: Theme.iconRow

    color: Theme.ovInk
    font.family: Theme.emojiFamily
    font.pixelSize: Math.max(1, Math.round(size * 0.86))
    height: size
    horizontalAlignment: Text.AlignHCenter
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
    width: Math.max(size, implicitWidth)
    Accessible.ignored: true
}
