pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The soft, low shadow under something that floats: it stands behind what it is put into. Paper casts none.
Item {
    id: root

    /// Corner radius of what floats.
    property int radius: Theme.cornerCard

    component Layer: BorderImage {
        required property int blur
        required property int strength
        property int drop: 0
        readonly property int edge: root.radius + blur

        anchors.fill: parent
        anchors.margins: -blur
        anchors.topMargin: -blur + drop
        anchors.bottomMargin: -blur - drop
        border { left: edge; right: edge; top: edge; bottom: edge }
        source: "image://orvel-shadows/" + root.radius + "/" + blur + "/" + strength
    }

    anchors.fill: parent
    visible: !Theme.inkMode
    z: -1

    Layer {
        blur: 26
        drop: 10
        strength: Theme.dark ? 52 : 20
    }

    Layer {
        blur: 5
        drop: 1
        strength: Theme.dark ? 40 : 12
    }
}
