import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// One block of the page: its body, and beside it what can be done with it.
ScreenListRow {
    id: row

    required property var blockID
    required property int type
    required property string typeLabel
    required property string body
    required property string blockText
    required property string placeholder
    required property int headingLevel
    required property string marker
    required property string numberText
    required property bool isChecked
    required property int tone
    required property string toneSymbol
    required property string language
    required property string lineCountText
    required property int codeHeight
    required property bool canMoveUp
    required property bool canMoveDown
    required property PageEditorViewModel editor
    required property BlockCaret caret
    /// Whether the menu of this block is open.
    property bool menuShown: false

    readonly property BlockBody part: loader.item as BlockBody
    readonly property bool chromeShown: pointer.hovered || activeFocus || menuShown

    /// Keys leave the block upwards (-1) or downwards (1).
    signal departed(direction: int)
    signal tabbed(forward: bool)
    signal jumped(key: int)
    signal caretMoved(field: Item, caret: rect)
    signal menuRequested(from: Item)
    signal toneMenuRequested(from: Item)

    function leaveBackwards(): bool {
        if (!part.hasOwnKeys)
            tab(false)
        return !part.hasOwnKeys
    }

    function tab(forward: bool) {
        const stops = part.stops()
        const next = stops.findIndex(stop => stop.activeFocus) + (forward ? 1 : -1)
        if (next >= 0 && next < stops.length)
            stops[next].forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        else
            tabbed(forward)
    }

    /// Does what a key means for any block; false for any other.
    function actOnBlock(key: int, control: bool, shift: bool): bool {
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down:
            if (control && shift)
                editor.moveBlock(blockID, key === Qt.Key_Up ? -1 : 1)
            return control && shift
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            if (control)
                tab(!shift)
            return control
        case Qt.Key_Menu:
            menuRequested(row)
            return true
        case Qt.Key_F10:
            if (shift)
                menuRequested(row)
            return shift
        }
        return false
    }

    /// Does what a key means where a line of text is written; false for any other.
    function actOnText(key: int, control: bool, shift: bool): bool {
        if (control) {
            const isEnd = key === Qt.Key_Home || key === Qt.Key_End
            if (isEnd && !shift)
                jumped(key)
            return isEnd && !shift
        }
        switch (key) {
        case Qt.Key_Up:
        case Qt.Key_Down: {
            const direction = key === Qt.Key_Up ? -1 : 1
            if (shift || !part.leaves(direction))
                return false
            departed(direction)
            return true
        }
        case Qt.Key_PageUp:
        case Qt.Key_PageDown:
            if (!shift)
                jumped(key)
            return !shift
        case Qt.Key_Tab:
            tab(!shift)
            return true
        case Qt.Key_Return:
        case Qt.Key_Enter:
            editor.insertBlock(blockID)
            return true
        case Qt.Key_Escape:
            if (editor.slashTypes.length === 0)
                return false
            editor.dismissSlash()
            return true
        }
        return false
    }

    fadesIn: false
    rowHeight: Math.ceil(loader.height)
    Accessible.name: typeLabel
    Accessible.role: Accessible.ListItem

    Keys.onPressed: event => {
        const control = (event.modifiers & Qt.ControlModifier) !== 0
        const shift = (event.modifiers & Qt.ShiftModifier) !== 0
        if (event.key !== Qt.Key_Up && event.key !== Qt.Key_Down)
            caret.column = -1
        if (event.modifiers & (Qt.AltModifier | Qt.MetaModifier))
            return
        event.accepted = actOnBlock(event.key, control, shift)
                || (!part.hasOwnKeys && actOnText(event.key, control, shift))
    }

    HoverHandler {
        id: pointer
        parent: row
    }

    Loader {
        active: row.chromeShown || opacity > 0
        opacity: row.chromeShown ? 1 : 0
        x: -width - Theme.space4
        y: Math.round((row.part?.firstLineCenter ?? 0) - height / 2)

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationHover }
        }

        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        sourceComponent: BlockChrome {
            onInsertRequested: row.editor.insertBlock(row.blockID)
            onMenuRequested: from => row.menuRequested(from)
        }
        // qmllint enable unqualified
    }

    // qmllint disable unqualified
    Component {
        id: textBody
        TextBlock {
            blockID: row.blockID
            editor: row.editor
            headingLevel: row.headingLevel
            isChecked: row.isChecked
            keyTarget: row
            label: row.typeLabel
            marker: row.marker
            numberText: row.numberText
            placeholder: row.placeholder
            storedText: row.blockText
            tone: row.tone
            toneSymbol: row.toneSymbol
            onCaretMoved: (field, caret) => row.caretMoved(field, caret)
            onToneMenuRequested: from => row.toneMenuRequested(from)
        }
    }

    Component {
        id: dividerBody
        DividerBlock {
            blockID: row.blockID
            editor: row.editor
            keyTarget: row
            onCaretMoved: (field, caret) => row.caretMoved(field, caret)
        }
    }

    Component {
        id: codeBody
        CodeBlock {
            blockID: row.blockID
            codeHeight: row.codeHeight
            editor: row.editor
            keyTarget: row
            language: row.language
            lineCountText: row.lineCountText
            placeholder: row.placeholder
            storedText: row.blockText
            onCaretMoved: (field, caret) => row.caretMoved(field, caret)
            onDeparted: direction => row.departed(direction)
        }
    }
    // qmllint enable unqualified

    Loader {
        id: loader
        focus: true
        sourceComponent: row.body === "divider" ? dividerBody : row.body === "code" ? codeBody : textBody
        width: parent.width
    }
}
