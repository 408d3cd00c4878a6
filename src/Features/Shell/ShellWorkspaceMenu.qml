pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Shell

/// The workspace's icon and name, and behind them what concerns it as a whole.
OVPressable {
    id: root

    required property NavigationViewModel navigation
    /// Only the icon, for bars that have little room.
    property bool compact: false
    property OVMenu menu: null

    implicitHeight: tile.implicitHeight + 2 * Theme.space8
    implicitWidth: compact ? tile.implicitWidth + 2 * Theme.space8
                           : label.x + label.implicitWidth + Theme.space4 + caret.width + leftPadding + rightPadding
    leftPadding: Theme.space8
    pressedScale: 1
    rightPadding: Theme.space8
    text: Orvel.settings.workspaceName
    toolTip: compact ? text : ""
    Accessible.name: qsTr("Workspace menu, %1").arg(text)
    OVAccessible.role: Accessible.ButtonMenu
    onClicked: {
        // Made when it is first asked for, as the start shows no menu.
        if (!menu)
            menu = menuComponent.createObject(root) as OVMenu
        menu.openBeside(root, 0, -Theme.space4, height + Theme.space4)
    }

    contentItem: Item {
        WorkspaceTile {
            id: tile

            anchors.verticalCenter: parent.verticalCenter
            emoji: Orvel.settings.workspaceIcon
        }

        OVText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            font.weight: Font.DemiBold
            maximumLineCount: 1
            text: root.text
            visible: !root.compact
            width: Math.min(implicitWidth, parent.width - x - caret.width - Theme.space4)
            x: tile.width + Theme.space8 + 2
            Accessible.ignored: true
        }

        OVIcon {
            id: caret

            anchors.verticalCenter: parent.verticalCenter
            color: Theme.ovInkTertiary
            size: Theme.iconRow - 4
            symbol: "chevron.down"
            visible: !root.compact
            x: label.x + label.width + Theme.space4
        }
    }

    Component {
        id: menuComponent

        OVMenu {
            OVMenuItem {
                shortcutText: root.navigation.keys("newPage")
                symbol: "doc.badge.plus"
                text: qsTr("New page")
                onTriggered: root.navigation.newPage()
            }

            OVMenuItem {
                shortcutText: root.navigation.keys("newNote")
                symbol: "note.text.badge.plus"
                text: qsTr("New note")
                onTriggered: root.navigation.newNote()
            }

            OVMenuSeparator { }

            OVMenuItem {
                symbol: "square.and.arrow.down"
                text: qsTr("Import Markdown…")
                onTriggered: root.navigation.runCommand("importMarkdown")
            }

            OVMenuItem {
                symbol: "square.and.arrow.up"
                text: qsTr("Export all as Markdown…")
                onTriggered: root.navigation.runCommand("exportMarkdown")
            }

            OVMenuSeparator { }

            OVMenuItem {
                shortcutText: root.navigation.keys("settings")
                symbol: "gearshape"
                text: qsTr("Workspace settings")
                onTriggered: Orvel.ui.select("settings")
            }

            OVMenuItem {
                shortcutText: root.navigation.keys("shortcuts")
                symbol: "keyboard"
                text: qsTr("Keyboard shortcuts")
                onTriggered: Orvel.ui.isShortcutsPresented = true
            }
        }
    }
}
