import QtQuick
import Orvel.DesignSystem
import Orvel.Pages

/// One block of the page.
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

    /// Where the caret last stood in the text, for another body that takes it over.
    property int caretPosition: 0

    readonly property BlockBody part: loader.item as BlockBody
    readonly property bool isSelected: editor.selection.active && index >= editor.selection.first && index <= editor.selection.last

    /// An arrow key leaves the block upwards (-1) or downwards (1).
    signal departed(direction: int)
    signal tabbed(forward: bool)
    signal keyPressed(event: var)
    signal caretMoved()
    signal toneMenuRequested(from: Item)

    function leaveBackwards(): bool {
        if (!part.hasOwnKeys)
            tabbed(false)
        return !part.hasOwnKeys
    }

    // Tab goes through the parts of a block first.
    function leaveForwards(): bool {
        return false
    }

    // Nothing moves while the user types.
    collapses: !(list as BlockKeys).caret.typing
    fadesIn: false
    onCaretMoved: caretPosition = part.input?.cursorPosition ?? caretPosition
    rowHeight: Math.ceil(loader.height)
    Accessible.name: typeLabel
    Accessible.role: Accessible.ListItem

    Keys.onPressed: event => keyPressed(event)

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

    // Selected blocks that follow each other are one field of colour, rounded at its ends.
    Item {
        readonly property int overhang: Theme.space8

        clip: true
        height: parent.height
        visible: row.isSelected
        width: parent.width + 2 * overhang
        x: -overhang

        Rectangle {
            readonly property int above: row.index === row.editor.selection.first ? 0 : radius
            readonly property int below: row.index === row.editor.selection.last ? 0 : radius

            // Fainter than behind a few words, since all of the blocks is to be read.
            opacity: 0.6
            color: Theme.selection
            height: parent.height + above + below
            radius: Theme.cornerField
            width: parent.width
            y: -above
        }
    }

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
