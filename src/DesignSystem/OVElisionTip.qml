import QtQuick
import Orvel.DesignSystem

/// Shows the whole of an elided text while the pointer is over it. Made by `OVText` for texts that are elided,
/// since most never are.
Item {
    id: root

    required property OVText label

    anchors.fill: parent
    Accessible.ignored: true

    HoverHandler {
        id: pointer
    }

    OVToolTip {
        shown: pointer.hovered && root.label.truncated
        target: root
        text: root.label.plainText
    }
}
