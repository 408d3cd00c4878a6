import QtQuick
import Orvel.DesignSystem

/// An emoji, or a short text in its place, as large as its square.
Item {
    property int size: Theme.iconRow
    property alias text: label.text

    implicitHeight: size
    implicitWidth: Math.max(size, label.implicitWidth)
    Accessible.ignored: true

    // Of its own size: a drawing of an emoji is unpacked at each new measure.
    Text {
        id: label

        anchors.centerIn: parent
        color: Theme.ovInk
        font.family: Theme.emojiFamily
        font.pixelSize: Math.max(1, Math.round(parent.size * 0.86))
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
