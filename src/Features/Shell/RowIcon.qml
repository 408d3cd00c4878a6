import QtQuick
import Orvel.DesignSystem

/// The icon before a line: a symbol, or an emoji at its size.
Item {
    id: root

    property string symbol
    /// Shown instead of the symbol.
    property string emoji
    property color color: Theme.ovInkSecondary
    property bool filled: false

    implicitHeight: Theme.iconRow
    implicitWidth: Theme.iconRow

    OVIcon {
        color: Theme.accentIcons ? Theme.accent : root.color
        filled: root.filled
        symbol: root.emoji === "" ? root.symbol : ""
    }

    Text {
        anchors.centerIn: parent
        font.family: Theme.fontFamily
        font.pixelSize: Theme.iconRow - 1
        fontSizeMode: Text.HorizontalFit
        horizontalAlignment: Text.AlignHCenter
        minimumPixelSize: Theme.iconRow / 2
        text: root.emoji
        textFormat: Text.PlainText
        width: root.width
        Accessible.ignored: true
    }
}
