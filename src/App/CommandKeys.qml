pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import Orvel.App

/// Binds the keys of the commands, whatever has the focus. Held down, a key counts once.
Instantiator {
    id: keys

    required property OrvelCommands commands

    model: commands.commands

    delegate: Shortcut {
        required property var modelData

        sequences: modelData.keys
        enabled: modelData.isBound
        context: Qt.ApplicationShortcut
        autoRepeat: false
        onActivated: keys.commands.run(modelData.id)
    }
}
