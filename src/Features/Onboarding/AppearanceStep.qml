pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// Whether the window is light, dark, or as the desktop is.
OnboardingPage {
    id: root

    ArrowGrid {
        id: grid

        columns: 3
        current: root.onboarding.appearance
        items: repeater
        spacing: Theme.space16
        width: parent.width
        Accessible.name: root.onboarding.title
        Accessible.role: Accessible.Grouping
        onMoved: index => root.onboarding.appearance = index

        Repeater {
            id: repeater

            model: root.onboarding.appearances

            OVPressable {
                id: card

                required property int index
                required property string title
                required property string symbol
                required property var looks
                required property bool isSelected

                tabStop: index === grid.current
                checked: isSelected
                padding: Theme.space8
                radius: Theme.cornerCard
                text: title
                width: Math.floor((grid.width - 2 * grid.spacing) / 3)
                Accessible.checkable: true
                Accessible.checked: checked
                OVAccessible.role: Accessible.RadioButton
                Keys.onEnterPressed: root.accepted()
                Keys.onReturnPressed: root.accepted()
                onClicked: {
                    grid.follow(index)
                    root.onboarding.appearance = index
                }

                background: Rectangle {
                    border.color: card.checked ? Theme.accent : card.hovered ? Theme.ovBorderStrong : Theme.ovBorder
                    border.width: card.checked ? 2 : Theme.lineWidth
                    color: card.checked ? Theme.ovSubtle : Theme.ovSurface
                    radius: card.radius
                }
                contentItem: Column {
                    spacing: Theme.space8

                    OVLookPreview {
                        height: Math.round(width * 0.8)
                        looks: card.looks
                        width: parent.width
                    }

                    OVButtonContent {
                        color: card.checked ? Theme.ovInk : Theme.ovInkSecondary
                        filled: card.checked
                        height: Theme.chipHeight
                        symbol: card.symbol
                        text: card.text
                        width: parent.width
                    }
                }
            }
        }
    }
}
