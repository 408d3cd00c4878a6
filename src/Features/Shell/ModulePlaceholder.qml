import QtQuick
import Orvel.DesignSystem

/// Stands for a place that has no screen yet.
FocusScope {
    id: root

    required property string symbol
    required property string title
    property string blurb

    OVAppear {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.space48
        width: Math.min(implicitWidth, root.width - 2 * Theme.screenPaddingNarrow)

        OVEmptyState {
            message: root.blurb
            symbol: root.symbol
            title: root.title
            width: parent.width
        }
    }
}
