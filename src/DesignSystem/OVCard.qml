import QtQuick
import QtQuick.Templates as T
import Orvel.DesignSystem

/// A sheet of paper on the canvas: it lies flat and takes the size of its content.
T.Pane {
    id: root

    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    padding: Theme.space16

    background: Rectangle {
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        radius: Theme.cornerCard
    }
}
