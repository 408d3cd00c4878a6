import QtQuick
import Orvel.DesignSystem

/// A layer of the window that fades in and out, takes no input on its way out and is then gone. Each time it comes it
/// is made anew.
Loader {
    id: root

    required property bool shown
    /// The file of what the layer shows, and the properties that it is made with.
    required property url page
    property var pageProperties: ({})
    /// Nothing is loaded while this is set.
    property bool held: false
    /// Whether its files are still being read or its items made.
    readonly property bool loading: status === Loader.Loading

    function load() {
        if (active)
            setSource(page, pageProperties)
        else
            source = ""
    }

    active: !held && (shown || opacity > 0)
    enabled: shown
    focus: shown
    opacity: shown ? 1 : 0

    Component.onCompleted: load()
    onActiveChanged: load()

    Behavior on opacity {
        NumberAnimation { duration: Theme.durationScreen }
    }
}
