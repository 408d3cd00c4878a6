import QtQuick
import Orvel.DesignSystem

/// An emoji, or a short text in its place, as large as its square.
Item {
    id: root

    property int size: Theme.iconRow
    property string text

    implicitHeight: size
    implicitWidth: Math.max(size, image.implicitWidth)
    Accessible.ignored: true

    Image {
        id: image

        anchors.centerIn: parent
        source: DisplayText.emojiSource(root.text, Theme.ovInk)
        sourceSize { width: root.size; height: root.size }
        Accessible.ignored: true
    }
}
