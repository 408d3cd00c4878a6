import QtQuick
import QtQuick.Templates as T
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Session

/// An editor of source text with colours and line numbers, which scrolls by itself. Where it cannot scroll
/// further, the wheel goes on to what it lies in. Tab indents, so Ctrl+Tab leaves it.
FocusScope {
    id: root

    /// The owner's text; the editor never writes it, but tells each change.
    property string text
    /// The raw text of a language.
    property string language
    property bool wrap: true
    property int fontSize: Theme.sizeCode
    property bool showLineNumbers: true
    property string placeholder
    property string accessibleName: qsTr("Code")
    property int verticalPadding: Theme.space8
    /// Gets the keys before the editor does; null for nothing.
    property Item keyTarget: null
    readonly property int caretLine: code.caretLine
    readonly property int caretColumn: code.caretColumn
    readonly property int lineCount: code.lineCount
    readonly property bool visualFocus: area.activeFocus && (area.focusReason === Qt.TabFocusReason
                                                             || area.focusReason === Qt.BacktabFocusReason
                                                             || area.focusReason === Qt.ShortcutFocusReason)
    /// The height at which nothing has to scroll.
    readonly property real fullHeight: rows.textHeight + 2 * verticalPadding
    /// What a search has found, in UTF-16 units of the text.
    property alias marks: marks.marks
    property alias input: area
    property alias flickable: view
    /// Whether more of a long text is still to come.
    readonly property alias isLoading: code.isLoading

    signal edited(text: string)
    /// An arrow key would lead out of the text.
    signal leftUp()
    signal leftDown()

    function forceFocus(reason = Qt.OtherFocusReason) {
        area.forceActiveFocus(reason)
    }

    /// Takes the keyboard, with the caret at a place that comes into view.
    function placeCaret(caret: int) {
        forceFocus()
        area.cursorPosition = Math.max(0, Math.min(caret, area.length))
        keys.reveal()
    }

    /// Brings a stretch of the text into view, without taking the keyboard.
    function showStretch(start: int, length: int) {
        keys.showPlace(area.positionToRectangle(start))
    }

    /// Takes the text as one that has just been opened at a place.
    function begin(caret = 0, scroll = Qt.point(0, 0)) {
        keys.isHeld = true
        area.cursorPosition = Math.min(caret, area.length)
        keys.isHeld = false
        view.contentX = scroll.x
        view.contentY = scroll.y
    }

    implicitHeight: fullHeight
    implicitWidth: Theme.fieldWidth

    FontMetrics {
        id: metrics
        font: area.font
    }

    CodeEditorDocument {
        id: code
        caret: area.cursorPosition
        document: area.textDocument
        language: root.language
        text: root.text
        viewHeight: view.height
        viewTop: view.contentY - area.y
        onCaretPlaced: position => area.cursorPosition = position
        onEdited: text => {
            root.edited(text)
            keys.reveal()
        }
    }

    CodeLineNumbers {
        id: numbers
        caretColor: Theme.ovInkSecondary
        color: Theme.ovInkTertiary
        document: code
        documentTop: area.y - view.contentY
        font.family: Theme.codeFamily
        font.pixelSize: Math.round(Theme.sizeCaption * 11 / 12)
        height: root.height
        margin: 10
        visible: root.showLineNumbers
        width: visible ? implicitWidth : 0
    }

    OVFindMarks {
        id: marks
        anchors.fill: view
        document: area.textDocument
        origin: rows.origin
    }

    TextRows {
        id: rows
        anchors.fill: view
        color: area.color
        document: area.textDocument
        origin: Qt.point(area.x - view.contentX, area.y - view.contentY)
        selectedTextColor: area.selectedTextColor
        selectionColor: area.selectionColor
        selectionEnd: area.selectionEnd
        selectionStart: area.selectionStart
        onShifted: distance => view.contentY += distance
    }

    Flickable {
        id: view
        anchors.bottom: parent.bottom
        anchors.left: numbers.right
        anchors.right: parent.right
        anchors.top: parent.top
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: area.height + 2 * area.y
        contentWidth: area.x + area.width + Theme.space12

        T.ScrollBar.horizontal: OVScrollBar { }
        T.ScrollBar.vertical: OVScrollBar { }

        // The margins lie outside the text, which would not draw into paddings of its own.
        T.TextArea {
            id: area

            readonly property real room: view.width - x - Theme.space12

            Accessible.description: qsTr("Tab indents. Ctrl Tab leaves the editor.")
            Accessible.name: root.accessibleName
            color: Theme.ovInk
            cursorDelegate: OVCaret { }
            focus: true
            font.family: Theme.codeFamily
            font.pixelSize: root.fontSize
            // Code is read character by character, and measured faster without ligatures.
            font.preferShaping: false
            height: Math.max(view.height, root.fullHeight) - 2 * y
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            persistentSelection: true
            readOnly: code.isLoading
            selectByMouse: true
            selectedTextColor: Theme.ovInk
            selectionColor: Theme.selection
            tabStopDistance: 4 * metrics.advanceWidth(" ")
            textFormat: TextEdit.PlainText
            width: root.wrap ? room : Math.max(room, rows.textWidth)
            wrapMode: root.wrap ? TextEdit.Wrap : TextEdit.NoWrap
            x: root.showLineNumbers ? Theme.space4 : Theme.space12
            y: root.verticalPadding
            Keys.forwardTo: root.keyTarget ? [root.keyTarget] : []
            Keys.onPressed: event => keys.handle(event)
            onCursorPositionChanged: keys.reveal()
        }
    }

    CodeEditorKeys {
        id: keys
        contextMenu: menuArea
        document: code
        flickable: view
        input: area
        onLeftDown: root.leftDown()
        onLeftUp: root.leftUp()
    }

    OVText {
        Accessible.ignored: true
        color: Theme.ovInkTertiary
        font: area.font
        text: root.placeholder
        visible: area.length === 0 && area.preeditText === ""
        width: area.room
        x: view.x + area.x
        y: area.y
    }

    OVContextMenuArea {
        id: menuArea
        focusTarget: area
        // A Loader of this Qt version cannot make a bound component.
        // qmllint disable unqualified
        menu: Component {
            OVTextMenu {
                storeBacked: true
                target: area
                onRedoRequested: Orvel.undo.redo()
                onUndoRequested: Orvel.undo.undo()
            }
        }
        // qmllint enable unqualified
    }
}
