pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem

/// What is shown above the items of a screen: its title, below that what is put into it, and in place of missing
/// items a word on that.
FocusScope {
    id: root

    property alias title: header.title
    property alias subtitle: header.subtitle
    property alias symbol: header.symbol
    /// At the right end of the title.
    property alias actions: header.trailing
    default property alias content: content.data
    /// Below the content.
    property int bottomGap: Theme.space24

    /// Whether there are no items.
    property bool isEmpty: false
    property string emptySymbol
    property string emptyTitle
    property string emptyMessage
    /// Empty for no action.
    property string emptyAction
    property string emptyActionSymbol: "plus"

    signal emptyActionTriggered()

    implicitHeight: column.implicitHeight

    Column {
        id: column
        topPadding: Math.round(Theme.screenPadding * 1.25)
        width: root.width

        OVPageHeader {
            id: header
            width: parent.width
        }

        Column {
            id: content
            bottomPadding: root.bottomGap
            spacing: Theme.space16
            topPadding: Theme.space24
            width: parent.width
        }

        OVLazyLoader {
            active: root.isEmpty
            width: parent.width

            sourceComponent: Item {
                implicitHeight: empty.implicitHeight + 2 * Theme.space48

                OVAppear {
                    anchors.centerIn: parent
                    width: parent.width

                    OVEmptyState {
                        id: empty
                        actionSymbol: root.emptyActionSymbol
                        actionText: root.emptyAction
                        message: root.emptyMessage
                        symbol: root.emptySymbol
                        title: root.emptyTitle
                        width: parent.width
                        onActionTriggered: root.emptyActionTriggered()
                    }
                }
            }
        }
    }
}
