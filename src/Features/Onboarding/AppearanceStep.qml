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

            OVLookCard {
                required property int index
                required property string title
                required property bool isSelected

                tabStop: index === grid.current
                checked: isSelected
                text: title
                width: Math.floor((grid.width - 2 * grid.spacing) / 3)
                Keys.onEnterPressed: root.accepted()
                Keys.onReturnPressed: root.accepted()
                onClicked: {
                    grid.follow(index)
                    root.onboarding.appearance = index
                }
            }
        }
    }
}
