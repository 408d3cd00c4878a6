pragma ComponentBehavior: Bound

import QtQuick
import Orvel.App
import Orvel.DesignSystem
import Orvel.Shell

/// The menus of the commands, inside the window.
OVMenuBar {
    id: bar

    required property OrvelCommands commands

    background: ShellGround {
        edge: Qt.BottomEdge
    }

    Component.onCompleted: {
        for (const menu of commands.menus)
            addMenu(menuComponent.createObject(bar, { "title": menu.title, "commands": menu.commands }))
    }

    Component {
        id: menuComponent

        OVMenu {
            id: menu

            required property var commands

            // Their entries are made when they are first opened: most starts see none of them.
            function fill() {
                if (count > 0)
                    return
                for (const command of commands) {
                    if (command.startsGroup)
                        addItem(separatorComponent.createObject(contentItem))
                    addItem(itemComponent.createObject(contentItem, { "command": command }))
                }
                measure()
            }

            onAboutToShow: {
                bar.commands.prepare(bar.keys.origin)
                fill()
            }
        }
    }

    Component {
        id: itemComponent

        OVMenuItem {
            required property var command

            enabled: command.enabled
            shortcutText: command.keysText
            text: command.title
            onTriggered: bar.commands.run(command.id, bar.keys.origin)
        }
    }

    Component {
        id: separatorComponent

        OVMenuSeparator { }
    }
}
