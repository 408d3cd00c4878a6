pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// Shows the whole of an elided text while the pointer is over it. Made by `OVText` for texts that are elided,
/// since most never are.
HoverHandler {
    id: root

    required property OVText label
    /// Null until the pointer is over the text for the first time.
    property OVToolTip tip: null
    readonly property Component bubble: Component {
        OVToolTip {
            shown: root.hovered && root.label.truncated
            target: root.label
            text: root.label.plainText
        }
    }

    onHoveredChanged: {
        if (hovered && tip === null)
            tip = bubble.createObject(label) as OVToolTip
    }
}
