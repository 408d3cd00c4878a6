import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Pages

/// A block of source text that can be run where it stands.
BlockBody {
    id: root

    required property string storedText
    required property string placeholder
    required property string language
    required property string lineCountText
    required property int codeHeight
    required property string partText
    readonly property CodeRun run: editor.codeRun(blockID)

    /// An arrow key leads out of the text, upwards (-1) or downwards (1).
    signal departed(direction: int)

    function stops(): list<Item> {
        return bar.stops().concat([code], result.active ? (result.item as CodeConsole).stops() : [])
    }

    function showStretch(start: int, length: int) {
        code.showStretch(start, length)
    }

    function leavesByPage(direction: int): bool {
        const view = code.flickable
        return !hasOwnKeys || (direction < 0 ? view.contentY <= 0 : view.contentY >= view.contentHeight - view.height - 1)
    }

    firstLineCenter: card.y + bar.height / 2
    hasOwnKeys: code.activeFocus
    implicitHeight: card.height + 2 * Theme.space8
    input: code.input

    Keys.onPressed: event => {
        if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && event.modifiers === Qt.ControlModifier) {
            event.accepted = true
            root.editor.runInlineCode(root.blockID)
        } else {
            event.accepted = false
        }
    }

    // What the editor draws itself, as it scrolls.
    BlockMarks {
        id: marks
        blockID: root.blockID
        document: code.input.textDocument
        editor: root.editor
        storedText: root.storedText
        visible: false
    }

    Rectangle {
        id: card
        border.color: code.visualFocus ? Theme.accent : Theme.ovBorder
        border.width: Theme.lineWidth
        color: Theme.ovSubtle
        height: column.height
        radius: Theme.cornerField
        width: parent.width
        y: Theme.space8

        Column {
            id: column
            width: parent.width

            CodeBlockBar {
                id: bar
                blockID: root.blockID
                editor: root.editor
                language: root.language
                lineCountText: root.lineCountText
                run: root.run
                width: parent.width
            }

            CodeEditor {
                id: code
                accessibleName: root.placeholder
                focus: true
                // Lines that wrap get room as well, up to the height of the longest text.
                height: Math.max(scaled(root.codeHeight), Math.min(Math.ceil(fullHeight), scaled(root.editor.maxCodeHeight)))
                keyTarget: root.keyTarget
                language: root.language
                marks: marks.marks
                placeholder: root.placeholder
                showLineNumbers: false
                text: root.storedText
                verticalPadding: Theme.space16
                width: parent.width
                onEdited: text => root.editor.setText(root.blockID, text)
                onLeftDown: root.departed(1)
                onLeftUp: root.departed(-1)

                function scaled(height: int): int {
                    return Math.round(height * Theme.fontScale)
                }
            }

            BlockPart {
                editor: root.editor
                blockID: root.blockID
                leftPadding: Theme.space12
                text: root.partText
                width: parent.width
            }

            Loader {
                id: result
                active: root.run.running || root.run.hasResult
                width: parent.width

                // A Loader of this Qt version cannot make a bound component.
                // qmllint disable unqualified
                sourceComponent: CodeConsole {
                    run: root.run
                    onCopyRequested: root.editor.copyOutput(root.blockID)
                    onHideRequested: {
                        // The console takes the focus with it.
                        if (root.activeFocus)
                            code.forceFocus()
                        root.run.clear()
                    }
                }
                // qmllint enable unqualified
            }
        }
    }
}
