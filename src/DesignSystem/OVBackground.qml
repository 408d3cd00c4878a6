pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// The ground of the window: the canvas colour, its gradient, and slow blobs of its colours where they are allowed.
Rectangle {
    id: root

    /// Leaves the pictures on the gradient out, which take longer to draw than all the rest of a first frame.
    property bool plain: false
    readonly property list<color> colors: Theme.canvasColors
    readonly property bool hasGradient: colors.length > 1
    readonly property bool drifting: hasGradient && Theme.animatedBackground && Theme.motionEnabled && visible
                                     && Window.active && GraphicsInfo.api !== GraphicsInfo.Software
    /// Seconds that the blobs have drifted.
    property real time: 0

    color: Theme.ovCanvas
    clip: true

    Rectangle {
        anchors.fill: parent
        visible: root.hasGradient
        gradient: Gradient {
            GradientStop { position: 0; color: root.hasGradient ? root.colors[0] : Theme.ovCanvas }
            GradientStop {
                position: 0.5
                color: !root.hasGradient ? Theme.ovCanvas
                     : root.colors.length > 2 ? root.colors[1] : Qt.tint(root.colors[0], Qt.alpha(root.colors[1], 0.5))
            }
            GradientStop { position: 1; color: root.hasGradient ? root.colors[root.colors.length - 1] : Theme.ovCanvas }
        }
    }

    Repeater {
        model: root.hasGradient && !root.plain && Theme.animatedBackground ? 2 : 0

        Image {
            required property int index
            readonly property real phase: index * 2.1
            readonly property real wander: Math.sin(root.time * 0.09 + phase) * 90 + Math.cos(root.time * 0.05 + phase) * 160 + 320
            readonly property real rise: Math.cos(root.time * 0.07 + phase) * 70 + Math.sin(root.time * 0.06 + phase) * 140 + 280

            height: width
            opacity: Theme.vividCanvas ? 0.9 : 0.6
            source: "image://orvel-glows/" + String(root.colors[index === 0 ? root.colors.length - 1 : 0]).slice(1)
            width: root.width * (index === 0 ? 0.7 : 0.6)
            x: (index === 0 ? wander : root.width - wander) - width / 2
            y: (index === 0 ? rise : root.height - rise) - height / 2
        }
    }

    Image {
        anchors.fill: parent
        fillMode: Image.Tile
        source: visible ? "image://orvel-glows/grain" : ""
        visible: root.hasGradient && !root.plain
    }

    Timer {
        interval: 50
        repeat: true
        running: root.drifting
        onTriggered: root.time += interval / 1000
    }
}
