import QtQuick
import Orvel.DesignSystem

/// The status of a project as a badge, which opens the menu of all of them.
OVPressable {
    id: root

    required property var projectID
    /// A choice, and all of them.
    required property var status
    required property var statuses
    /// Whether the keyboard works the card, so that the place in the menu shows at once.
    required property bool byKeyboard

    function openMenu() {
        // Not true any more once the menu has the focus.
        const startsInside = byKeyboard
        loader.load()
        const menu = loader.item as OVMenu
        menu.openBeside(root, 0, -Theme.space4, height + Theme.space4)
        menu.currentIndex = startsInside ? 0 : -1
    }

    radius: Theme.cornerMark
    tabStop: false
    text: qsTr("Status: %1").arg(status.label)
    toolTip: qsTr("Status")
    washed: false
    OVAccessible.role: Accessible.ButtonMenu
    onClicked: openMenu()

    contentItem: OVBadge {
        text: root.status.label
        tone: root.status.tone
        Accessible.ignored: true
    }

    OVLazyLoader {
        id: loader

        sourceComponent: ProjectStatusMenu {
            parent: root
            projectID: root.projectID
            status: root.status.raw
            statuses: root.statuses
        }
    }
}
