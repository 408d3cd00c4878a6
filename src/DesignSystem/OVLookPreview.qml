pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A small picture of the window in another appearance. Of several looks each draws its share of the width.
Item {
    id: root

    /// `OVLook`s.
    required property var looks

    implicitHeight: Math.round(implicitWidth * 0.62)
    implicitWidth: 180
    Accessible.ignored: true

    Repeater {
        model: root.looks

        Item {
            id: share

            required property int index
            required property var modelData
            readonly property int start: Math.round(root.width * index / root.looks.length)

            clip: root.looks.length > 1
            height: root.height
            width: Math.round(root.width * (index + 1) / root.looks.length) - start
            x: start

            OVLookWindow {
                height: root.height
                look: share.modelData
                width: root.width
                x: -share.start
            }
        }
    }
}
