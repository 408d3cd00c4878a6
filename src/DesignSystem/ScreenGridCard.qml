pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A card of a `ScreenGrid`, which can be pressed and takes the focus as a whole. Its parts are no stops for
/// Tab.
///
/// A card that is removed under the pointer takes the clicks at its place until the pointer moves, so that a second
/// one meets nothing else.
FocusScope {
    id: root

    required property int index
    readonly property ScreenGrid grid: GridView.view as ScreenGrid
    readonly property bool visualFocus: activeFocus && (grid?.keys.ringShown ?? false)
    readonly property bool hovered: pointer.hovered
    default property alias content: face.data

    signal clicked()

    activeFocusOnTab: activeFocus
    height: grid?.cellHeight ?? 0
    width: grid?.cellWidth ?? 0

    Accessible.focusable: true
    GridView.onAdd: {
        grid.cardAdded()
        if (!grid.opening)
            (entry.createObject(root) as Animation).start()
    }
    GridView.onRemove: {
        root.GridView.delayRemove = true
        z = 1;
        (removal.createObject(root) as OVRemoval).begin()
    }
    Keys.onBacktabPressed: grid.exitBackwards()
    Keys.onPressed: event => {
        if (grid.keys.press(event.key))
            event.accepted = true
    }
    onActiveFocusChanged: {
        if (activeFocus)
            grid.currentIndex = index
    }

    OVAppear {
        id: appear

        animated: (root.grid?.opening ?? false) && root.grid.staggered
        height: root.grid?.cardHeight ?? 0
        index: Math.max(0, root.index)
        width: root.grid?.cardWidth ?? 0
        // From the place in the view's cells to the place in the column; continuous, so that it can glide.
        x: root.grid ? Math.round(root.grid.columnX + root.x * (root.grid.pitch / root.grid.cellWidth - 1)) : 0

        Rectangle {
            id: face

            anchors.fill: parent
            border.color: pointer.hovered ? Theme.ovBorderStrong : Theme.ovBorder
            border.width: Theme.lineWidth
            color: press.pressed ? Theme.ovSubtle : Theme.ovSurface
            radius: Theme.cornerCard
            scale: press.pressed ? 0.98 : 1

            Behavior on scale {
                NumberAnimation { duration: Theme.durationHover; easing.type: Easing.OutCubic }
            }

            OVFocusRing {
                shown: root.visualFocus
                targetRadius: face.radius
            }

            HoverHandler {
                id: pointer
                cursorShape: Qt.PointingHandCursor
            }

            TapHandler {
                id: press
                gesturePolicy: TapHandler.WithinBounds
                onTapped: root.clicked()
            }
        }
    }

    // Made when they are needed: a grid makes a screenful of cards within one frame.
    Component {
        id: entry

        NumberAnimation {
            target: appear
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.durationScreen
        }
    }

    Component {
        id: removal

        OVRemoval {
            content: appear
            fadesFirst: true
            hover: pointer
            onReleased: root.GridView.delayRemove = false

            Connections {
                target: root.grid
                function onCardAdded() {
                    root.GridView.delayRemove = false
                }
            }
        }
    }
}
