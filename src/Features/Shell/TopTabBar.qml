pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// A strip of all visible modules below the top bar.
TabStrip {
    id: root

    required property NavigationViewModel navigation

    chosenTab: navigation.chosenTab
    implicitHeight: Theme.buttonHeight
    spacing: 2
    model: navigation.tabs

    delegate: ShellTab {
        required property string title
        required property string destination

        tabStop: false
        chosen: destination === root.navigation.selection
        labelled: Theme.tabBarLabels
        text: title
        onClicked: Orvel.ui.select(destination)
    }
}
