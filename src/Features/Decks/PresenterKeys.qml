import QtQuick
import Orvel.Decks

/// What the keys do during a talk, those of a remote control among them.
QtObject {
    id: root

    required property DeckPresenterViewModel presenter

    signal fullScreenRequested()

    function take(event: var) {
        const plain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
        event.accepted = plain && press(event.key)
    }

    function press(key: int): bool {
        switch (key) {
        case Qt.Key_Right:
        case Qt.Key_Down:
        case Qt.Key_Space:
        case Qt.Key_PageDown:
            presenter.advance(1)
            return true
        case Qt.Key_Left:
        case Qt.Key_Up:
        case Qt.Key_PageUp:
            presenter.advance(-1)
            return true
        case Qt.Key_Home:
            presenter.showFirst()
            return true
        case Qt.Key_End:
            presenter.showLast()
            return true
        case Qt.Key_Escape:
            presenter.close()
            return true
        case Qt.Key_N:
            PresenterStyle.showingNotes = !PresenterStyle.showingNotes
            return true
        case Qt.Key_B:
        case Qt.Key_Period:
            presenter.blanked = !presenter.blanked
            return true
        case Qt.Key_T:
            presenter.restartTimer()
            return true
        case Qt.Key_F:
            fullScreenRequested()
            return true
        }
        return false
    }
}
