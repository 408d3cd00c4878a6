pragma Singleton

import QtQuick

/// The look of the stage, which is black whatever the theme, and what it keeps from one presentation to the next.
QtObject {
    readonly property color stage: "black"
    readonly property color panel: Qt.rgba(1, 1, 1, 0.08)
    readonly property color hover: Qt.rgba(1, 1, 1, 0.14)
    readonly property color ink: Qt.rgba(1, 1, 1, 0.92)
    readonly property color inkSecondary: Qt.rgba(1, 1, 1, 0.66)
    readonly property color track: Qt.rgba(1, 1, 1, 0.2)
    readonly property int barHeight: 60
    /// How long the pointer rests before it is hidden, in milliseconds.
    readonly property int pointerRest: 3000

    property bool showingNotes: false
}
