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
        store: Orvel.store
        ui: Orvel.ui
    }

    ScreenGrid {
        id: grid
        anchors.fill: parent
        cardHeight: 2 * Theme.space16 + Theme.iconTile + 2 * Theme.space12 + 2 * Theme.space4 + Theme.space8
                    + Math.ceil(1.4 * (Theme.sizeBody + 4 * Theme.sizeDense + Theme.sizeCaption))
        focus: true
        minimumCardWidth: Theme.fieldWidth + Theme.space16
        model: notes.rows

        above: NotesHeader {
            id: header
            focus: true
            viewModel: notes
            onLeaveDown: grid.focusCard(0, Qt.TabFocusReason)
        }
        delegate: NoteCard { viewModel: notes }

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
