import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// The title of a page, edited where it stands: one line of text that wraps where it is long.
OVTextField {
    id: field

    required property PageHeaderViewModel header

    /// The user goes on from the title, with Return, Tab or down from its last line.
    signal leaveDown()

    /// Shows the title as it is stored, with the caret in place.
    function show(title: string) {
        if (text === title)
            return
        const caret = cursorPosition
        text = title
        cursorPosition = Math.min(caret, length)
    }

    /// Moves the caret to the line above or below; false if there is none.
    function moveLine(direction: int): bool {
        const caret = cursorRectangle
        const y = caret.y + (direction + 0.5) * caret.height
        if (y < 0 || y > height)
            return false
        cursorPosition = positionAt(caret.x, y)
        return true
    }

    font.bold: true
    font.letterSpacing: -0.6 * Theme.fontScale
    font.pixelSize: Theme.sizePageTitle
    placeholderText: qsTr("Untitled")
    plain: true
    storeBacked: true
    wrapMode: TextInput.Wrap
    Accessible.name: qsTr("Title")

    Component.onCompleted: {
        show(header.title)
        cursorPosition = length
        if (header.isUnnamed)
            selectAll()
    }
    Keys.onDownPressed: event => {
        event.accepted = !inputMethodComposing && (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier
        if (event.accepted && !moveLine(1))
            leaveDown()
    }
    Keys.onEnterPressed: event => {
        event.accepted = !inputMethodComposing
        if (event.accepted)
            leaveDown()
    }
    Keys.onReturnPressed: event => {
        event.accepted = !inputMethodComposing
        if (event.accepted)
            leaveDown()
    }
    Keys.onTabPressed: leaveDown()
    Keys.onUpPressed: event => {
        event.accepted = !inputMethodComposing && (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier
                         && moveLine(-1)
    }
    onRedoRequested: Orvel.undo.redo()
    onTextEdited: show(header.setTitle(text))
    onUndoRequested: Orvel.undo.undo()

    Connections {
        function onTitleChanged() {
            field.show(field.header.title)
        }

        target: field.header
    }
}
