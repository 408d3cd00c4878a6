pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Onboarding

/// Which screens stay in sight.
OnboardingPage {
    id: root

    trailing: [
        OVSecondaryButton {
            implicitHeight: Theme.chipHeight
            text: qsTr("Select all")
            onClicked: root.onboarding.selectAllModules()
        },
        OVSecondaryButton {
            implicitHeight: Theme.chipHeight
            text: qsTr("Clear")
            onClicked: root.onboarding.clearModules()
        }
    ]

    ArrowGrid {
        id: grid

        readonly property int cellWidth: Math.floor((width - (columns - 1) * spacing) / columns)

        columns: width >= 560 * Theme.fontScale ? 3 : 2
        items: repeater
        spacing: Theme.space8
        width: parent.width
        Accessible.name: root.onboarding.title
        Accessible.role: Accessible.Grouping

        Repeater {
            id: repeater

            model: root.onboarding.modules

            ModuleCard {
                required property int index
                required property string title
                required property bool isSelected

                tabStop: index === grid.current
                checked: isSelected
                text: title
                width: grid.cellWidth
                onClicked: {
                    grid.follow(index)
                    root.onboarding.toggleModule(index)
                }
            }
        }
    }
}
