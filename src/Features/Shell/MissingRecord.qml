import QtQuick
import Orvel.DesignSystem
import Orvel.Session

/// Stands where a record was selected that is no more.
FocusScope {
    id: root

    required property string symbol
    required property string title
    required property string message
    required property string actionTitle
    /// Where the action leads.
    required property string destination

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
