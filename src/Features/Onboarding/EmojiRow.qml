pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// A row of emoji of which one is chosen. The arrow keys move the choice.
Column {
    id: root

    required property string label
    required property list<string> icons
    required property string icon
    readonly property int tile: Theme.iconTile + Theme.space16

    signal chosen(icon: string)
    signal accepted

    spacing: Theme.space8

    OVText {
        color: Theme.ovInkSecondary
        font.weight: Font.Medium
        role: OVText.Dense
        text: root.label
        width: parent.width
        Accessible.ignored: true
    }

    ArrowGrid {
        id: grid

        columns: (root.tile + Theme.space8) * root.icons.length - Theme.space8 <= root.width ? root.icons.length
                                                                                           : root.icons.length / 2
        current: Math.max(0, root.icons.indexOf(root.icon))
        items: repeater
        spacing: Theme.space8
        Accessible.name: root.label
        Accessible.role: Accessible.Grouping
        onMoved: index => root.chosen(root.icons[index])

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
                        size: Theme.iconTile
                        text: choice.text
                    }
                }
            }
        }
    }
}
