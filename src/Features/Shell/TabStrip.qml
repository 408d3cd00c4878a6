import QtQuick
import Orvel.DesignSystem

/// A row of tabs that scrolls where it needs more room, and fades where tabs go on. Tab reaches it as a whole; within it
/// the arrows go from tab to tab.
ListView {
    id: root

    /// The tab to be kept in sight; -1 for none.
    property int chosenTab: -1

    /// Width of each tab, and their number, where all have one width.
    property int tabWidth: 0
    property int tabCount: 0
    /// What the strip stands on; tabs fade into it.
    property color ground: Theme.ovSidebar

    function goTo(tab: int) {
        if (tab < 0 || tab >= count)
            return
        currentIndex = tab
        positionViewAtIndex(tab, ListView.Contain)
        currentItem?.forceActiveFocus(Qt.TabFocusReason)
        // The view has given the item its focus already, without the reason.
        if (Window.activeFocusItem)
            Window.activeFocusItem.focusReason = Qt.TabFocusReason
    }

    function reveal() {
        if (chosenTab >= 0 && !activeFocus)
            currentIndex = chosenTab
        if (chosenTab >= 0)
            positionViewAtIndex(chosenTab, ListView.Contain)
    }

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    // All of the few modules are made, so that the chosen one can be shown.
    cacheBuffer: 4000
    currentIndex: -1
    highlightFollowsCurrentItem: false
    clip: interactive
    // The view's own count changes while it takes its width.
    implicitWidth: Math.max(0, tabCount * (tabWidth + spacing) - spacing)
    interactive: contentWidth > width
    keyNavigationEnabled: false
    orientation: ListView.Horizontal
    spacing: Theme.space4
    Accessible.name: qsTr("Modules")
    Accessible.role: Accessible.PageTabList
    onChosenTabChanged: reveal()
    onWidthChanged: {
        positionViewAtBeginning()
        reveal()
    }
    onActiveFocusChanged: {
        if (activeFocus && currentIndex < 0)
            goTo(0)
    }

    Keys.onLeftPressed: goTo(currentIndex - 1)
    Keys.onRightPressed: goTo(currentIndex + 1)

    component Fade: Rectangle {
        id: fade

        property bool atEnd: false

        height: root.height
        parent: root
        width: Theme.space32
        x: atEnd ? root.width - width : 0
        z: 1

        gradient: Gradient {
            orientation: Gradient.Horizontal

            GradientStop {
                color: Qt.alpha(root.ground, fade.atEnd ? 0 : 1)
                position: 0
            }
            GradientStop {
                color: Qt.alpha(root.ground, fade.atEnd ? 1 : 0)
                position: 1
            }
        }
    }

    Fade {
        visible: root.contentX - root.originX > 1
    }

    Fade {
        atEnd: true
        visible: root.contentX - root.originX < root.contentWidth - root.width - 1
    }

    // The wheel of a mouse turns the strip too.
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse
        onWheel: event => {
            const end = Math.max(0, root.contentWidth - root.width)
            root.contentX = Math.max(0, Math.min(end, root.contentX - event.angleDelta.y / 2))
        }
    }
}
