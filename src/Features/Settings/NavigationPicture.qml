pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A window drawn small, with the navigation of a style around its content, in the colours of the window.
Rectangle {
    id: root

    /// Raw text of the `NavigationStyle`.
    required property string style
    readonly property bool hasSidebar: style === "sidebar"
    readonly property bool isOnTop: style === "tabsTop"
    readonly property bool isDock: style === "glassDock"
    readonly property int unit: Math.max(2, Math.round(width / 30))
    readonly property int barHeight: 4 * unit

    border.color: Theme.ovBorderStrong
    border.width: Theme.lineWidth
    color: Theme.ovCanvas
    implicitHeight: Math.round(implicitWidth * 0.66)
    implicitWidth: Math.round(84 * Theme.fontScale)
    radius: Theme.cornerMark

    component Line: Rectangle {
        color: Theme.ovBorderStrong
        height: Math.max(2, root.unit - 1)
        radius: height / 2
        width: 8 * root.unit
    }

    // What the navigation stands on.
    Rectangle {
        border.color: root.isDock ? Theme.ovBorderStrong : Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSidebar
        height: root.hasSidebar ? parent.height : root.barHeight
        radius: root.isDock ? height / 2 : root.radius
        width: root.hasSidebar ? 9 * root.unit : root.isDock ? 18 * root.unit : parent.width
        x: root.isDock ? Math.round((parent.width - width) / 2) : 0
        y: root.hasSidebar || root.isOnTop ? 0 : parent.height - height - (root.isDock ? root.unit + 1 : 0)

        Grid {
            anchors.centerIn: parent
            columns: root.hasSidebar ? 1 : 4
            spacing: root.hasSidebar ? root.unit + 1 : root.unit * (root.isDock ? 2 : 3)

            Repeater {
                model: 4

                Rectangle {
                    required property int index

                    color: index === 0 ? Theme.accent : Theme.ovBorderStrong
                    height: root.hasSidebar ? Math.max(2, root.unit - 1) : root.unit + 1
                    radius: height / 2
                    width: root.hasSidebar ? 6 * root.unit : height
                }
            }
        }
    }

    Column {
        spacing: root.unit + 1
        x: root.hasSidebar ? 12 * root.unit : 4 * root.unit
        y: (root.isOnTop ? root.barHeight : 0) + 3 * root.unit

        Line {
            color: Theme.ovInkTertiary
        }

        Line {
            width: 13 * root.unit
        }

        Line {
            width: 10 * root.unit
        }
    }
}
