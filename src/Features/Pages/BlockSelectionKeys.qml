import QtQuick
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session

/// Has the focus while blocks are selected: it takes the keys that work on them, and what is typed over them, which
/// may come from an input method.
TextInput {
    id: root

    required property BlockSelecting list
    readonly property PageSelection selection: list.selection
    /// What the Edit menu works on.
    readonly property QtObject editTarget: QtObject {
        readonly property bool canPaste: root.canPaste
        readonly property int length: root.list.count
        readonly property string selectedText: root.selection.text

        function copy() {
            root.selection.copy()
        }

        function cut() {
            root.selection.cut()
        }

        function paste() {
            root.selection.paste(false)
        }

        function selectAll() {
            root.selection.selectAll()
        }
    }

    signal menuRequested()

    function handleKey(key: int, control: bool, shift: bool): bool {
        const isUpwards = key === Qt.Key_Up || key === Qt.Key_Left || key === Qt.Key_Home || key === Qt.Key_PageUp
        const direction = isUpwards ? -1 : 1
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
        case Qt.Key_Left:
        case Qt.Key_Right:
            if (control && shift && (key === Qt.Key_Up || key === Qt.Key_Down))
                selection.move(direction)
            else if (shift)
                selection.extend(direction)
            else
                list.leaveSelection(direction)
            return true
        case Qt.Key_Home:
        case Qt.Key_End:
            if (shift)
                selection.extend(direction * list.count)
            else
                list.jump(key)
            return true
        case Qt.Key_PageUp:
        case Qt.Key_PageDown:
            if (shift)
                selection.extend(direction * Math.max(1, Math.floor(list.height / Theme.space48)))
            else
                list.leaveSelection(direction)
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            selection.remove()
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
            list.leaveSelection(1)
            return true
        case Qt.Key_Escape:
            list.leaveSelection(0)
            return true
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            list.tab(shift ? selection.first : selection.last, !shift)
            return true
        case Qt.Key_Menu:
        case Qt.Key_F10:
            if (key === Qt.Key_Menu || shift)
                menuRequested()
            return true
        }
        return control && handleControl(key, shift)
    }

    function handleControl(key: int, shift: bool): bool {
        switch (key) {
        case Qt.Key_A:
            selection.selectAll()
            return true
        case Qt.Key_V:
            selection.paste(shift)
            return true
        case Qt.Key_Y:
            Orvel.undo.redo()
            return true
        case Qt.Key_Z:
            if (shift)
                Orvel.undo.redo()
            else
                Orvel.undo.undo()
            return true
        }
        return false
    }

    activeFocusOnTab: false
    cursorDelegate: Item { }
    // Input methods show what is composed beside the block that the selection ends in.
    height: Theme.space24
    opacity: 0
    width: 1
    x: list.columnX
    Accessible.name: selection.text
    Accessible.role: Accessible.EditableText

    onTextEdited: {
        const typed = text
        clear()
        selection.typeOver(typed)
    }

    Keys.onPressed: event => {
        const control = (event.modifiers & Qt.ControlModifier) !== 0
        const shift = (event.modifiers & Qt.ShiftModifier) !== 0
        list.caret.column = -1
        list.caret.typing = true
        // Some of these have several keys.
        event.accepted = true
        if (event.matches(StandardKey.Cut))
            return selection.cut()
        if (event.matches(StandardKey.Copy))
            return selection.copy()
        if (event.matches(StandardKey.Paste))
            return selection.paste(false)
        event.accepted = !(event.modifiers & (Qt.AltModifier | Qt.MetaModifier)) && handleKey(event.key, control, shift)
    }

    Connections {
        target: root.selection
        function onChanged() {
            if (!root.selection.active)
                return
            root.list.revealSelection()
            root.y = Math.max(0, (root.list.rowAt(root.selection.focusRow)?.y ?? 0) - root.list.contentY)
            root.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
}
