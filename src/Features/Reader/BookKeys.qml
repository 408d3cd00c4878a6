import QtQuick
import Orvel.Reader

/// What keys do in the text of a book.
Item {
    id: root

    required property BookText reading
    required property BookSelection selection

    function scroll(key: int, backwards: bool): bool {
        switch (key) {
        case Qt.Key_Space:
            reading.turnPage(backwards ? -1 : 1)
            return true
        case Qt.Key_PageDown:
        case Qt.Key_Right:
            reading.turnPage(1)
            return true
        case Qt.Key_PageUp:
        case Qt.Key_Left:
            reading.turnPage(-1)
            return true
        case Qt.Key_Down:
            reading.scrollBy(2 * reading.lineHeight)
            return true
        case Qt.Key_Up:
            reading.scrollBy(-2 * reading.lineHeight)
            return true
        case Qt.Key_Home:
            reading.goToStart()
            return true
        case Qt.Key_End:
            reading.goToEnd()
            return true
        }
        return false
    }

    /// Shift and an arrow take a paragraph more or less.
    function select(step: int) {
        selection.extendByRow(reading.book.topRow, step)
        reading.reveal(selection.row, 0)
    }

    function command(key: int): bool {
        if (key === Qt.Key_C)
            selection.copy()
        else if (key === Qt.Key_A)
            selection.selectAll()
        else if (key === Qt.Key_Home)
            reading.goToStart()
        else if (key === Qt.Key_End)
            reading.goToEnd()
        else
            return false
        return true
    }

    Keys.onPressed: event => {
        const modifiers = event.modifiers & ~Qt.KeypadModifier
        const shift = modifiers === Qt.ShiftModifier
        if (modifiers === Qt.ControlModifier)
            event.accepted = command(event.key)
        else if (shift && (event.key === Qt.Key_Down || event.key === Qt.Key_Up)) {
            select(event.key === Qt.Key_Down ? 1 : -1)
            event.accepted = true
        } else if (modifiers === Qt.NoModifier || (shift && event.key === Qt.Key_Space))
            event.accepted = scroll(event.key, shift)
    }
}
