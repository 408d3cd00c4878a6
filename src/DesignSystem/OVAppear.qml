pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// An element of a list that fades in and rises when it is created, one after the other by `index`.
Item {
    id: root

    property int index: 0
    /// How far it rises, in pixels.
    property real offset: 8
    /// Size it starts from, as a part of the whole.
    property real scaleFrom: 1
    /// Without it, or with motion off, it is there at once.
    property bool animated: true

    default property alias content: holder.data
    readonly property Item contentItem: holder.children.length > 0 ? holder.children[0] : null

    Component.onCompleted: {
        if (animated && Theme.motionEnabled)
            (settling.createObject(root) as Animation).start()
    }

    implicitHeight: contentItem ? contentItem.implicitHeight : 0
    implicitWidth: contentItem ? contentItem.implicitWidth : 0

    Item {
        id: holder

        height: root.height
        width: root.width
    }

    // Most elements come without it.
    Component {
        id: settling

        SequentialAnimation {
            PropertyAction { target: holder; property: "opacity"; value: 0 }
            PropertyAction { target: holder; property: "y"; value: root.offset }
            PropertyAction { target: holder; property: "scale"; value: root.scaleFrom }
            // The first dozen come one after the other, the rest together with the last of them.
            PauseAnimation { duration: 45 * Math.min(root.index, 11) }
            ParallelAnimation {
                NumberAnimation { target: holder; property: "opacity"; to: 1; duration: Theme.durationSpring }
                NumberAnimation { target: holder; property: "y"; to: 0; duration: Theme.durationSpring; easing: Theme.springEasing }
                NumberAnimation { target: holder; property: "scale"; to: 1; duration: Theme.durationSpring; easing: Theme.springEasing }
            }
        }
    }
}
