pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// Modules as a row of tabs, which scrolls where it needs more room. It is one stop for Tab; the arrow keys, Home and
/// End move along it.
FocusScope {
    id: root

    required property NavigationViewModel navigation
    property alias model: repeater.model
    property alias spacing: row.spacing
    property bool upright: false
    property bool lifts: false
    /// Width of each tab; 0 for that of its content.
    property int tabWidth: 0
    /// What the widest of the tabs needs.
    readonly property real widestTab: {
        let widest = 0
        for (let i = 0; i < repeater.count; ++i)
            widest = Math.max(widest, repeater.itemAt(i)?.implicitWidth ?? 0)
        return widest
    }
    /// Room for the focus ring on each side.
    readonly property int margin: Theme.space4
    /// The tab that Tab leads to.
    property int current: Math.max(0, navigation.chosenTab)

    function focusTab(tab: int, reason: int) {
        if (tab < 0 || tab >= repeater.count)
            return
        repeater.itemAt(tab).forceActiveFocus(reason)
        current = tab
        reveal(tab)
    }

    function reveal(tab: int) {
        if (tab < 0 || repeater.itemAt(tab) === null)
            return
        const item = repeater.itemAt(tab)
        flickable.contentX = Math.max(item.x + item.width + 2 * margin - width, Math.min(item.x, flickable.contentX))
    }

    clip: flickable.interactive
    implicitHeight: row.implicitHeight + 2 * margin
    implicitWidth: row.implicitWidth + 2 * margin
    Accessible.name: qsTr("Modules")
    Accessible.role: Accessible.PageTabList
    onWidthChanged: reveal(current)

    Keys.onLeftPressed: focusTab(current - 1, Qt.TabFocusReason)
    Keys.onRightPressed: focusTab(current + 1, Qt.TabFocusReason)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
        if (event.accepted)
            focusTab(event.key === Qt.Key_Home ? 0 : repeater.count - 1, Qt.TabFocusReason)
    }

    Connections {
        target: root.navigation

        function onChosenTabChanged() {
            if (!root.activeFocus)
                root.current = Math.max(0, root.navigation.chosenTab)
            root.reveal(root.navigation.chosenTab)
        }
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        contentWidth: row.width + 2 * root.margin
        interactive: contentWidth > width

        Row {
            id: row

            x: root.margin
            y: root.margin

            Repeater {
                id: repeater

                onItemAdded: Qt.callLater(root.reveal, root.current)

                ShellTab {
                    id: tab

                    required property int index
                    required property string title
                    required property string destination

                    // How much of the tab the ends of the strip cut off.
                    readonly property real hidden: Math.max(flickable.contentX - x,
                                                            x + width + 2 * root.margin - flickable.contentX - flickable.width)

                    chosen: destination === root.navigation.selection
                    focus: index === root.current
                    lifts: root.lifts
                    opacity: 1 - Math.max(0, Math.min(1, hidden / width))
                    tabStop: index === root.current || activeFocus
                    text: title
                    upright: root.upright
                    width: root.tabWidth || implicitWidth
                    onClicked: {
                        if (root.activeFocus)
                            root.focusTab(index, Qt.MouseFocusReason)
                        root.current = index
                        Orvel.ui.select(destination)
                    }
                }
            }
        }
    }

    // The wheel of a mouse scrolls the strip too.
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse
        onWheel: event => {
            const end = Math.max(0, flickable.contentWidth - flickable.width)
            flickable.contentX = Math.max(0, Math.min(end, flickable.contentX - event.angleDelta.y / 2))
        }
    }
}
