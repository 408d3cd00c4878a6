import QtQuick
import Orvel.Shell

/// Everything in the window once the onboarding is done, in layers: the shell, the palette over it, and a presented
/// deck over both.
FocusScope {
    id: root

    AppShellView {
        anchors.fill: parent
        focus: true
    }

    // The palette, while `Orvel.ui.isSearchPresented`.
    Item {
        anchors.fill: parent
        z: 2
    }

    // The presenter, while `Orvel.ui.presentingDeckID` names a deck.
    Item {
        anchors.fill: parent
        z: 3
    }

    // The shortcuts sheet, open while `Orvel.ui.isShortcutsPresented`.
}
