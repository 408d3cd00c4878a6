import QtQuick
import Orvel.Session
import Orvel.Shell

/// Everything in the window once the onboarding is done, in layers: the shell, a presented deck over it, and over both
/// the palette and the sheet of shortcuts, which float.
FocusScope {
    id: root

    AppShellView {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: saveProblem.top }
        focus: true
    }

    SaveProblemLine {
        id: saveProblem
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    // The presenter, while `Orvel.ui.presentingDeckID` names a deck.
    Item {
        anchors.fill: parent
        z: 3
    }

    // Made ahead, so that it opens with the next frame.
    Loader {
        asynchronous: true
        source: "../Palette/CommandPalette.qml"
    }

    Loader {
        active: Orvel.ui.isShortcutsPresented || status === Loader.Ready
        source: "../Palette/ShortcutsSheet.qml"
    }
}
