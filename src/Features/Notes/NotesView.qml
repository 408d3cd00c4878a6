pragma ComponentBehavior: Bound

import QtQuick
import Orvel.DesignSystem
import Orvel.Notes
import Orvel.Session

/// The screen of all notes.
FocusScope {
    id: root

    NotesViewModel {
        id: notes
        active: root.visible
        session: Orvel
        onRevealed: card => grid.keys.focus(card, Qt.TabFocusReason)
    }

    // As many lines as a full card has, in the font at hand: its title, four of its text, and its date.
    OVText {
        id: lines
        role: OVText.Dense
        text: "\n".repeat(5)
        visible: false
        wrapMode: Text.Wrap
    }

    ScreenGrid {
        id: grid
        anchors.fill: parent
        cardHeight: 2 * Theme.space16 + Theme.iconTile + 2 * Theme.space12 + Theme.space4 + Math.ceil(lines.implicitHeight)
        focus: true
        minimumCardWidth: Theme.fieldWidth + Theme.space16
        model: notes.rows
        screen: "notes"

        above: NotesHeader {
            id: header
            focus: true
            viewModel: notes
            onExited: grid.keys.focus(0, Qt.TabFocusReason)
        }
        delegate: NoteCard { viewModel: notes }
        onExited: edge => {
            if (edge === Qt.TopEdge)
                header.focusSearch()
        }

        Keys.onPressed: event => {
            event.accepted = event.text === "/"
            if (event.accepted)
                header.focusSearch()
        }
    }

    Shortcut {
        enabled: root.visible
        sequence: "Ctrl+F"
        onActivated: header.focusSearch()
    }
}
