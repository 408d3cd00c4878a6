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
    required property string widestNumber
    required property bool isChecked
    required property int tone
    required property string toneSymbol
    required property string language
    required property string partText
    required property string lineCountText
    required property int codeHeight
    required property bool canMoveUp
    required property bool canMoveDown
    required property PageEditorViewModel editor
    required property BlockCaret caret
    /// Whether the block is dragged or its menu is open.
    property bool isHeld: false

    /// Where the caret last stood in the text, for another body that takes it over.
    property int caretPosition: 0

    readonly property BlockBody part: loader.item as BlockBody
    readonly property bool chromeShown: isHeld || (pointer.hovered && !caret.typing)

    /// Keys leave the block upwards (-1) or downwards (1).
    signal departed(direction: int)
    signal tabbed(forward: bool)
    signal jumped(key: int)
    signal pageTurned(direction: int)
    signal caretMoved()
    signal menuRequested(from: Item)
    signal toneMenuRequested(from: Item)
    signal dragged(sceneY: real)
    signal dropped()

    function leaveBackwards(): bool {
        if (!part.hasOwnKeys)
            keys.tab(false)
        return !part.hasOwnKeys
    }

    fadesIn: false
    onCaretMoved: caretPosition = part.input?.cursorPosition ?? caretPosition
    rowHeight: Math.ceil(loader.height)
    Accessible.name: typeLabel
    Accessible.role: Accessible.ListItem

    Keys.onPressed: event => keys.handle(event)

    BlockKeys {
        id: keys
        blockID: row.blockID
        caret: row.caret
        editor: row.editor
        part: row.part
        onDeparted: direction => row.departed(direction)
        onJumped: key => row.jumped(key)
        onMenuRequested: row.menuRequested(row)
        onPageTurned: direction => row.pageTurned(direction)
        onTabbed: forward => row.tabbed(forward)
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
            onDragged: sceneY => row.dragged(sceneY)
            onDropped: row.dropped()
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
            partText: row.partText
            placeholder: row.placeholder
            storedText: row.blockText
            tone: row.tone
            toneSymbol: row.toneSymbol
            widestNumber: row.widestNumber
            onCaretMoved: row.caretMoved()
            onToneMenuRequested: from => row.toneMenuRequested(from)
        }
    }

    Component {
        id: dividerBody
        DividerBlock {
            blockID: row.blockID
            editor: row.editor
            keyTarget: row
            onCaretMoved: row.caretMoved()
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
            partText: row.partText
            placeholder: row.placeholder
            storedText: row.blockText
            onCaretMoved: row.caretMoved()
            onDeparted: direction => row.departed(direction)
        }
    }
    // qmllint enable unqualified

    Loader {
        id: loader
        focus: true
        sourceComponent: row.body === "divider" ? dividerBody : row.body === "code" ? codeBody : textBody
        width: parent.width
        onLoaded: {
            row.part.placeCaret(row.caretPosition)
            row.part.isReady = true
        }
    }
}
