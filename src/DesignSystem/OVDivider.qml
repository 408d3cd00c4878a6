import QtQuick
import Orvel.DesignSystem

/// A hair line between things.
Rectangle {
    property bool vertical: false

    color: Theme.ovBorder
    implicitHeight: vertical ? 16 : Theme.lineWidth
    implicitWidth: vertical ? Theme.lineWidth : 16
}
