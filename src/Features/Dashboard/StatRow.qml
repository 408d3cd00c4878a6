pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Orvel.Dashboard
import Orvel.DesignSystem
import Orvel.Session

/// The numbers of the day, side by side; each leads to where it comes from.
GridLayout {
    id: root

    required property DashboardViewModel viewModel
    readonly property int minimumTile: Theme.fieldWidth - Theme.space48

    columnSpacing: Theme.space16
    columns: width >= 4 * minimumTile + 3 * columnSpacing ? 4 : 2
    rowSpacing: Theme.space16

    Repeater {
        model: root.viewModel.tiles

        OVTileButton {
            required property string title
            required symbol
            required property string number
            required property string place

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            label: title
            value: number
            onClicked: Orvel.ui.select(place)
        }
    }
}
