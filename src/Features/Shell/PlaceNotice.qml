import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// Stands in the detail pane where there is no screen to show: says why, and may lead to another place.
FocusScope {
    id: root

    required property string symbol
    required property string title
    property string message
    property string actionTitle
    /// `Destination::text()` of where the action leads.
    property string destination

    OVAppear {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.space48
        width: Math.min(implicitWidth, root.width - 2 * Theme.screenPaddingNarrow)

        OVEmptyState {
            actionText: root.actionTitle
            message: root.message
            symbol: root.symbol
            title: root.title
            width: parent.width
            onActionTriggered: Orvel.ui.select(root.destination)
        }
    }
}
