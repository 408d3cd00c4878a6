pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// A strip of all visible modules below the top bar.
TabStrip {
    id: root

    required property NavigationViewModel navigation

    implicitHeight: Theme.buttonHeight
    model: navigation.tabs

    delegate: ShellTab {
        required property int index
        required property string title
        required property string destination

        activeFocusOnTab: false
        chosen: destination === root.navigation.selection
        labelled: Theme.tabBarLabels
        text: title
        onChosenChanged: if (chosen) root.reveal(index)
        onClicked: Orvel.ui.select(destination)
        Component.onCompleted: if (chosen) Qt.callLater(root.reveal, index)
    }
}
