import QtQuick
import Orvel.DesignSystem

/// The ground of one of several things to choose from; that of the chosen one has a line in the accent.
Rectangle {
    property bool chosen: false
    property bool hovered: false

    border.color: chosen ? Theme.accent : hovered ? Theme.ovBorderStrong : Theme.ovBorder
    border.width: chosen ? 2 : Theme.lineWidth
    color: chosen ? Theme.ovSubtle : Theme.ovSurface
    radius: Theme.cornerField
}
