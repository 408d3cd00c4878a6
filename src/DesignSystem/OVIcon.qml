import QtQuick
import Orvel.DesignSystem

/// The icon of a symbol, drawn crisply at its size.
Image {
    id: root

    property string symbol
    property int size: Theme.iconRow
    property color color: Theme.ovInkSecondary
    /// Shows the filled twin, the mark of the chosen state.
    property bool filled: false

    height: size
    source: symbol === "" ? "" : "image://orvel-icons/" + symbol + (filled ? ".fill" : "") + "/" + String(color).slice(1)
    sourceSize { width: size; height: size }
    width: size
    Accessible.ignored: true
}
