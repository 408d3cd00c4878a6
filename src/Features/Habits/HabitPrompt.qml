import QtQuick
import QtQuick.Shapes
import Orvel.DesignSystem

/// The last row of the list: the way to another habit.
ScreenListRow {
    id: row

    signal triggered()

    fadesIn: false
    rowHeight: Theme.roundMark + Theme.space12
    Accessible.name: qsTr("Add a habit")
    Accessible.role: Accessible.Button
    Accessible.onPressAction: triggered()

    Keys.onPressed: event => {
        const isPress = event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space
        if (isPress)
            triggered()
        event.accepted = isPress || list.keys.press(event.key)
    }

    OVPressable {
        id: button
        anchors.fill: parent
        radius: Theme.cornerCard
        tabStop: false
        Accessible.ignored: true
        onClicked: row.triggered()

        background: Item {
            HoverWash {
                hovered: button.hovered
                pressed: button.down
                radius: button.radius
            }

            Shape {
                id: outline
                readonly property real inset: Theme.lineWidth / 2
                anchors.fill: parent

                ShapePath {
                    id: path
                    readonly property real corner: Math.max(0.01, Math.min(button.radius, outline.height / 2))
                    dashPattern: [4, 4]
                    fillColor: "transparent"
                    strokeColor: Theme.ovBorderStrong
                    strokeStyle: ShapePath.DashLine
                    strokeWidth: Theme.lineWidth
                    startX: path.corner
                    startY: outline.inset

                    PathLine { x: outline.width - path.corner; y: outline.inset }
                    PathArc { x: outline.width - outline.inset; y: path.corner; radiusX: path.corner; radiusY: path.corner }
                    PathLine { x: outline.width - outline.inset; y: outline.height - path.corner }
                    PathArc { x: outline.width - path.corner; y: outline.height - outline.inset; radiusX: path.corner; radiusY: path.corner }
                    PathLine { x: path.corner; y: outline.height - outline.inset }
                    PathArc { x: outline.inset; y: outline.height - path.corner; radiusX: path.corner; radiusY: path.corner }
                    PathLine { x: outline.inset; y: path.corner }
                    PathArc { x: path.corner; y: outline.inset; radiusX: path.corner; radiusY: path.corner }
                }
            }
        }
        contentItem: OVButtonContent {
            color: Theme.ovInkSecondary
            symbol: "plus.circle"
            text: qsTr("Add a habit")
        }
    }

    OVFocusRing {
        shown: row.visualFocus
        targetRadius: Theme.cornerCard
    }
}
