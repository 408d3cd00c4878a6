import QtQuick
import Orvel.DesignSystem

/// The text cursor of every field. It blinks as the desktop asks, and stands still while the text changes.
Rectangle {
    id: caret

    readonly property Item field: parent

    width: 2
    radius: 1
    color: Theme.accent
    visible: field?.cursorVisible ?? false

    Timer {
        id: blink
        interval: Math.max(1, Application.styleHints.cursorFlashTime / 2)
        running: caret.visible && Application.styleHints.cursorFlashTime > 0
        repeat: true
        onTriggered: caret.opacity = 1 - caret.opacity
        onRunningChanged: caret.opacity = 1
    }

    Connections {
        target: caret.field
        function onCursorPositionChanged() {
            caret.opacity = 1
            if (blink.running)
                blink.restart()
        }
    }
}
