pragma ComponentBehavior: Bound

import QtQuick
import Orvel.Decks
import Orvel.DesignSystem

/// A slide of the filmstrip. Dragged, it goes to another place.
Item {
    id: row

    required property int index
    required property var slideID
    required property int number
    required property string name
    required property var shown
    required property DeckEditorViewModel editor
    required property bool ringShown
    readonly property bool isSelected: ListView.isCurrentItem
    readonly property real stride: width + (ListView.view?.spacing ?? 0)
    /// How many places it would go if it were dropped now.
    readonly property int offset: {
        const wanted = index + Math.round(tile.x / Math.max(1, stride))
        return Math.max(0, Math.min(editor.slideCount - 1, wanted)) - index
    }
    readonly property bool dragged: drag.active

    signal picked()
    signal menuRequested()
    signal dropped(offset: int)
    signal pulled(sceneX: real)

    Accessible.name: name
    Accessible.role: Accessible.ListItem
    Accessible.selected: isSelected
    Accessible.onPressAction: picked()
    z: drag.active ? 2 : 0

    Item {
        id: tile
        height: parent.height
        opacity: drag.active ? 0.85 : 1
        width: parent.width

        Rectangle {
            anchors.fill: picture
            anchors.margins: -3
            border.color: row.isSelected ? Theme.accent : pointer.hovered ? Theme.ovBorderStrong : Theme.ovBorder
            border.width: row.isSelected ? 2 : Theme.lineWidth
            color: Theme.ovSurface
            radius: Theme.cornerMark

            OVFocusRing {
                shown: row.ringShown && row.isSelected
                targetRadius: Theme.cornerMark
            }
        }

        SlideCanvas {
            id: picture
            height: Math.round(width * 9 / 16)
            shown: row.shown
            width: parent.width - 6
            x: 3
            y: Theme.space8
        }

        OVText {
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            Accessible.ignored: true
            color: row.isSelected ? Theme.ovInk : Theme.ovInkSecondary
            role: OVText.Caption
            text: row.number
        }

        HoverHandler { id: pointer }

        DragHandler {
            id: drag
            target: tile
            yAxis.enabled: false
            onActiveChanged: {
                if (active) {
                    row.picked()
                    return
                }
                const offset = row.offset
                tile.x = 0
                if (offset !== 0)
                    row.dropped(offset)
            }
            onCentroidChanged: {
                if (active)
                    row.pulled(centroid.scenePosition.x)
            }
        }

        TapHandler {
            gesturePolicy: TapHandler.DragThreshold
            onTapped: row.picked()
        }

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: {
                row.picked()
                row.menuRequested()
            }
        }
    }
}
