pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// A row of emoji of which one is chosen. The arrow keys move the choice.
Column {
    id: root

    required property string label
    property alias labelRole: title.role
    property alias labelColor: title.color
    required property list<string> icons
    required property string icon
    /// Whether it stays one row, which scrolls sideways where it is too long; else it breaks into two.
    property bool scrolls: false
    /// Whether the row is where the user sees it. The emoji take another size only then, since that takes long.
    property bool inView: true
    readonly property int tile: Theme.iconTile + Theme.space16
    readonly property real oneRow: (tile + Theme.space8) * icons.length - Theme.space8
    /// Room for the ring around a tile.
    readonly property int bleed: Theme.space4

    signal chosen(icon: string)
    signal accepted

    bottomPadding: -bleed
    spacing: Theme.space8 - bleed

    OVText {
        id: title

        color: Theme.ovInkSecondary
        font.weight: role === OVText.Section ? Font.DemiBold : Font.Medium
        role: OVText.Dense
        text: root.label
        width: parent.width
        Accessible.ignored: true
    }

    Flickable {
        id: flickable

        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        contentHeight: height
        contentWidth: grid.width + 2 * root.bleed
        height: grid.height + 2 * root.bleed
        interactive: contentWidth > width
        width: root.width + 2 * root.bleed
        x: -root.bleed

        function show(index: int) {
            if (!interactive || index < 0 || index >= repeater.count)
                return
            const tile = repeater.itemAt(index)
            contentX = Math.max(0, Math.min(contentWidth - width, Math.min(tile.x, Math.max(
                contentX, tile.x + tile.width + 2 * root.bleed - width))))
        }

        Behavior on contentX {
            enabled: !flickable.moving
            NumberAnimation { duration: Theme.durationScreen; easing.type: Easing.OutCubic }
        }

        ArrowGrid {
            id: grid

            columns: root.scrolls || root.oneRow <= root.width ? root.icons.length : Math.ceil(root.icons.length / 2)
            current: Math.max(0, root.icons.indexOf(root.icon))
            items: repeater
            spacing: Theme.space8
            x: root.bleed
            y: root.bleed
            Accessible.name: root.label
            Accessible.role: Accessible.Grouping
            onMoved: index => root.chosen(root.icons[index])
            onCurrentChanged: flickable.show(current)

            Repeater {
                id: repeater

                model: root.icons

                OVPressable {
                    id: choice

                    required property int index
                    required property string modelData

                    tabStop: index === grid.current
                    checked: modelData === root.icon
                    implicitHeight: root.tile
                    implicitWidth: root.tile
                    text: modelData
                    Accessible.checkable: true
                    Accessible.checked: checked
                    OVAccessible.role: Accessible.RadioButton
                    Keys.onEnterPressed: root.accepted()
                    Keys.onReturnPressed: root.accepted()
                    onClicked: {
                        grid.follow(index)
                        root.chosen(modelData)
                    }

                    background: Rectangle {
                        border.color: choice.checked ? Theme.accent : choice.hovered ? Theme.ovBorderStrong : Theme.ovBorder
                        border.width: choice.checked ? 2 : Theme.lineWidth
                        color: choice.checked ? Theme.ovHover : choice.hovered ? Theme.ovSubtle : Theme.ovSurface
                        radius: choice.radius
                    }
                    contentItem: Item {
                        OVEmoji {
                            anchors.centerIn: parent
                            text: choice.text

                            Binding on size {
                                restoreMode: Binding.RestoreNone
                                value: Theme.iconTile
                                when: root.inView
                            }
                        }
                    }
                }
            }
        }
    }
}
