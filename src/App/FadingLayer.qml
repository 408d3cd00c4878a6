import QtQuick
import Orvel.DesignSystem

/// A layer of the window that fades in and out, takes no input on its way out and is then gone.
Loader {
    required property bool shown

    active: shown || opacity > 0
    enabled: shown
    focus: shown
    opacity: shown ? 1 : 0

    Behavior on opacity {
        NumberAnimation { duration: Theme.durationScreen }
    }
}
