pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A window drawn small in the colours of a look: its sidebar, a title and a card of rows.
Rectangle {
    id: root

    /// An `OVLook`.
    required property var look

    /// The picture is drawn on a grid of this many steps across.
    readonly property real unit: width / 45
    readonly property int gap: Math.max(1, Math.round(unit * 2))
    readonly property int bar: Math.max(2, Math.round(unit))
    readonly property int sidebarWidth: Math.round(unit * 13)

    component Bar: Rectangle {
        color: root.look.inkTertiary
        height: root.bar
        radius: height / 2
    }

    radius: Math.round(Theme.cornerField)
    gradient: Gradient {
        GradientStop { position: 0; color: root.look.ground[0] }
        GradientStop { position: 0.5; color: root.look.ground[1] }
        GradientStop { position: 1; color: root.look.ground[2] }
    }

    Item {
        clip: true
        height: root.height
        width: root.sidebarWidth

        Rectangle {
            color: root.look.sidebar
            height: root.height
            radius: root.radius
            width: root.width
        }

        Rectangle {
            color: root.look.border
            height: root.height
            width: 1
            x: parent.width - width
        }
    }

    Rectangle {
        color: root.look.accent
        height: width
        radius: Math.round(width * 0.3 * root.look.cornerScale)
        width: Math.round(root.unit * 3)
        x: root.gap
        y: root.gap
    }

    Column {
        spacing: root.gap - 1
        x: root.gap
        y: Math.round(root.unit * 8)

        Repeater {
            model: [7, 9, 6, 8]

            Bar {
                required property int index
                required property int modelData

                color: index === 1 ? root.look.ink : root.look.inkTertiary
                opacity: index === 1 ? 0.85 : 0.55
                width: Math.round(root.unit * modelData)
            }
        }
    }

    Column {
        spacing: root.bar
        x: root.sidebarWidth + 2 * root.gap
        y: Math.round(root.unit * 4)

        Bar {
            color: root.look.ink
            height: Math.round(root.bar * 1.8)
            width: Math.round(root.unit * 11)
        }

        Bar {
            opacity: 0.7
            width: Math.round(root.unit * 16)
        }
    }

    Rectangle {
        border.color: root.look.border
        border.width: 1
        color: root.look.surface
        height: root.height - y - root.gap - 1
        radius: Math.round(root.unit * 1.5 * root.look.cornerScale)
        width: root.width - x - 2 * root.gap
        x: root.sidebarWidth + 2 * root.gap
        y: Math.round(root.unit * 11)

        Column {
            anchors.left: parent.left
            anchors.leftMargin: root.gap
            anchors.verticalCenter: parent.verticalCenter
            spacing: Math.round(root.gap * 1.1)

            Repeater {
                model: [13, 9, 11]

                Row {
                    id: row

                    required property int index
                    required property int modelData

                    spacing: root.bar

                    Rectangle {
                        border.color: row.index === 0 ? root.look.accent : root.look.borderStrong
                        border.width: 1
                        color: row.index === 0 ? root.look.accent : "transparent"
                        height: width
                        radius: width / 2
                        width: Math.round(root.unit * 2)
                    }

                    Bar {
                        anchors.verticalCenter: parent.verticalCenter
                        color: root.look.ink
                        opacity: 0.75
                        width: Math.round(root.unit * row.modelData)
                    }
                }
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        border.color: root.look.border
        border.width: 1
        color: "transparent"
        radius: root.radius
    }
}
