import QtQuick
import Orvel.DesignSystem

/// The part of a card behind one row of a list: the rows of a run lie on one card together, whose corners are
/// round at its ends.
Item {
    id: slice

    property bool isFirst: false
    property bool isLast: false
    /// Where the line to the next row begins and ends.
    property int dividerLeft: 0
    property int dividerRight: 0

    clip: !(isFirst && isLast)

    Rectangle {
        border.color: Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSurface
        height: parent.height - y + (slice.isLast ? 0 : Theme.cornerCard)
        radius: Theme.cornerCard
        width: parent.width
        y: slice.isFirst ? 0 : -Theme.cornerCard
    }

    OVDivider {
        anchors.bottom: parent.bottom
        visible: !slice.isLast
        width: parent.width - slice.dividerLeft - slice.dividerRight
        x: slice.dividerLeft
    }
}
