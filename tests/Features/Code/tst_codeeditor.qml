import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Testing

/// The editor alone, with an owner that keeps what it is told.
Item {
    id: root

    property string source
    property Item editor

    width: 640
    height: 400

    Component {
        id: maker

        Item {
            property alias editor: made
            property alias other: other
            property int up: 0
            property int down: 0

            anchors.fill: parent

            CodeEditor {
                id: made
                focus: true
                height: 320
                language: "python"
                text: root.source
                width: 600
                onEdited: text => root.source = text
                onLeftDown: ++parent.down
                onLeftUp: ++parent.up
            }

            OVTextField {
                id: other
                y: 340
            }
        }
    }

    ScreenTestCase {
        id: test

        name: "CodeEditor"
        scene: root
        visible: true

        function init() {
            root.source = ""
        }

        function open(text) {
            root.source = text
            const page = createTemporaryObject(maker, root)
            root.editor = page.editor
            root.editor.forceFocus()
            waitForRendering(root.editor)
            return page
        }

        function find(from, matches) {
            for (const child of Array.from(from.children).concat(from.contentItem ? [from.contentItem] : [])) {
                const found = matches(child) ? child : find(child, matches)
                if (found)
                    return found
            }
            return null
        }

        function lines(count) {
            const all = []
            for (let i = 0; i < count; ++i)
                all.push("line " + i)
            return all.join("\n")
        }

        function test_typingReachesTheOwner() {
            open("")
            type("a=1")
            compare(root.source, "a=1")
            compare(root.editor.caretLine, 1)
            compare(root.editor.caretColumn, 4)
            keyClick(Qt.Key_Return)
            type("b")
            compare(root.source, "a=1\nb")
            compare(root.editor.caretLine, 2)
            compare(root.editor.caretColumn, 2)
            compare(root.editor.lineCount, 2)
            open("first\nsecond")
            compare(root.editor.input.cursorPosition, 0)
        }

        function test_indentation() {
            const input = open("if x:\nb\n\nc").editor.input
            input.cursorPosition = 6
            keyClick(Qt.Key_Tab)
            compare(root.source, "if x:\n    b\n\nc")
            compare(input.cursorPosition, 10)
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Return)
            type("d")
            compare(root.source, "if x:\n    b\n    d\n\nc")
            keyClick(Qt.Key_Return, Qt.ShiftModifier)
            type("e")
            compare(root.source, "if x:\n    b\n    d\n    e\n\nc")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            compare(root.source, "if x:\n    b\n    d\ne\n\nc")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            compare(root.source, "if x:\n    b\n    d\ne\n\nc")

            // Several lines go together, empty ones aside.
            input.selectAll()
            keyClick(Qt.Key_Tab)
            compare(root.source, "    if x:\n        b\n        d\n    e\n\n    c")
            input.selectAll()
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            compare(root.source, "if x:\nb\nd\ne\n\nc")
        }

        function test_indentOfMixedBlanks() {
            const input = open("\ta\n  \tb\n  c").editor.input
            input.selectAll()
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            compare(root.source, "a\nb\nc")
            // A selection within a line gives way, as to any key.
            input.select(0, 1)
            keyClick(Qt.Key_Tab)
            compare(root.source, "    \nb\nc")
            // Return in the middle of the blanks keeps those before it.
            input.cursorPosition = 2
            keyClick(Qt.Key_Return)
            compare(root.source, "  \n    \nb\nc")
        }

        function test_backspaceGoesToTheLastStop() {
            const input = open("").editor.input
            const after = (text, position) => {
                root.source = text
                input.cursorPosition = position
                keyClick(Qt.Key_Backspace)
                return root.source + "|" + input.cursorPosition
            }
            compare(after("        a", 8), "    a|4")
            compare(after("       a", 7), "    a|4")
            compare(after("      a", 5), "     a|4")
            compare(after("   ", 3), "|0")
            compare(after("  \t  a", 5), "  \ta|3")
            compare(after("\ta", 1), "a|0")
            compare(after("    a", 5), "    |4")
            compare(after("a    ", 5), "a   |4")
            compare(after("a\nb", 2), "ab|1")
            root.source = "    a"
            input.select(0, 3)
            keyClick(Qt.Key_Backspace)
            compare(root.source, " a")
        }

        function test_menuOpensAtTheCaret() {
            const page = open(lines(40))
            page.editor.input.cursorPosition = 30
            const caret = page.editor.input.cursorRectangle
            for (const [key, modifier] of [[Qt.Key_F10, Qt.ShiftModifier], [Qt.Key_Menu, Qt.NoModifier]]) {
                keyClick(key, modifier)
                const area = find(page.editor, child => child instanceof OVContextMenuArea)
                tryVerify(() => area.openMenu?.opened)
                const place = page.editor.input.mapToItem(area, caret.x, caret.y + caret.height)
                fuzzyCompare(area.openMenu.x, place.x, 24)
                fuzzyCompare(area.openMenu.y, place.y, 24)
                area.openMenu.close()
                tryVerify(() => !area.openMenu.visible)
            }
        }

        /// Whether each row that is in view has something drawn in it.
        function verifyRows(item, left, rowHeight, what) {
            waitForRendering(item, 200)
            const image = grabImage(item)
            const ground = image.pixel(item.width - 3, item.height / 2)
            let blank = 0
            for (let y = 0; y < item.height; ++y) {
                let isBlank = true
                for (let x = left; x < left + 60 && isBlank; ++x)
                    isBlank = Qt.colorEqual(image.pixel(x, y), ground)
                blank = isBlank ? blank + 1 : 0
                verify(blank < rowHeight, what + " is blank at " + y)
            }
        }

        function test_longTextIsDrawnWhereverItIsScrolled() {
            const page = open("wrapped ".repeat(900) + "\n" + lines(60) + "\n" + "long ".repeat(2000))
            const view = page.editor.flickable
            for (let part = 0; part <= 40; ++part) {
                view.contentY = (view.contentHeight - view.height) * part / 40
                verifyRows(page.editor, page.editor.width - view.width + 4, 24, "the text at " + view.contentY)
            }
        }

        function test_consoleIsDrawnWhereverItIsScrolled() {
            const console = createTemporaryQmlObject("import Orvel.Code; ConsoleText { width: 500; height: 300 }", root)
            console.text = "line\n" + "wrapped ".repeat(2000) + "\n" + lines(500)
            const view = find(console, child => child instanceof Flickable)
            for (let part = 0; part <= 40; ++part) {
                view.contentY = 14 + (view.contentHeight - view.height - 28) * part / 40
                verifyRows(console, 12, 24, "the console at " + view.contentY)
            }
        }

        function test_hugeTextOpensWhole_data() {
            return [
                { tag: "many lines", text: "let a = 1\n".repeat(400000), length: 4000000 },
                { tag: "one line", text: "let a = 1; ".repeat(180000), length: 1980000 },
                { tag: "long lines", text: ("let a = 1; ".repeat(400) + "\n").repeat(1000), length: 4401000 }
            ]
        }
        function test_hugeTextOpensWhole(data) {
            const page = open(data.text)
            tryVerify(() => !page.editor.isLoading, 60000)
            compare(page.editor.input.length, data.length)
        }

        function test_tabLeavesWithControl() {
            const page = open("x")
            keyClick(Qt.Key_Tab, Qt.ControlModifier)
            verify(page.other.activeFocus)
            compare(root.source, "x")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            verify(root.editor.input.activeFocus)
            verify(root.editor.visualFocus)
        }

        function test_arrowsLeaveAtTheEnds() {
            const page = open("one\ntwo")
            page.editor.input.cursorPosition = 5
            keyClick(Qt.Key_Up)
            compare(page.up, 0)
            keyClick(Qt.Key_Up)
            compare(page.up, 1)
            keyClick(Qt.Key_Down)
            compare(page.down, 0)
            keyClick(Qt.Key_Down)
            compare(page.down, 1)
        }

        function test_textFromOutside() {
            const input = open("one\ntwo\nthree").editor.input
            input.cursorPosition = 10
            type("x")
            // A change before the caret takes the caret along. What is typed is the owner's to undo.
            root.source = "zero\n" + root.source
            compare(input.text, "zero\none\ntwo\nthxree")
            compare(input.cursorPosition, 16)
            compare(root.editor.caretLine, 4)
            verify(!input.canUndo)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(input.text, "zero\none\ntwo\nthxree")
            root.source = ""
            compare(input.cursorPosition, 0)
            root.source = "😀a"
            root.source = "😁a"
            compare(input.text, "😁a")
        }

        function test_showingChangesNothing() {
            const told = []
            const page = open("a\r\nb\u00a0c\u2028d\re")
            page.editor.edited.connect(text => told.push(text))
            waitForRendering(page.editor)
            page.editor.language = "swift"
            page.editor.wrap = false
            waitForRendering(page.editor)
            compare(told.length, 0)
            compare(page.editor.lineCount, 3)
            page.editor.input.cursorPosition = 0
            type("x")
            compare(told.join(), "xa\nb\u00a0c\u2028d\ne")
        }

        function test_compositionIsToldAtItsEnd() {
            const page = open("let a = 1")
            const told = []
            page.editor.edited.connect(text => told.push(text))
            page.editor.input.cursorPosition = 4
            Composer.compose("にほ")
            Composer.compose("にほん")
            compare(told.length, 0)
            Composer.commit("日本")
            compare(told.join(), "let 日本a = 1")
            compare(root.source, "let 日本a = 1")
        }

        function test_longTextScrollsWithTheCaret() {
            const page = open(lines(10000))
            compare(page.editor.lineCount, 10000)
            const view = page.editor.flickable, input = page.editor.input
            keyClick(Qt.Key_End, Qt.ControlModifier)
            compare(page.editor.caretLine, 10000)
            fuzzyCompare(view.contentY, view.contentHeight - view.height, 4)
            keyClick(Qt.Key_PageUp)
            const line = page.editor.caretLine
            verify(line < 9995 && line > 9975, line)
            keyClick(Qt.Key_PageDown, Qt.ShiftModifier)
            verify(input.selectionEnd - input.selectionStart > 50)
            keyClick(Qt.Key_Home, Qt.ControlModifier)
            compare(view.contentY, 0)
            // All is selected without the view running away.
            keyClick(Qt.Key_A, Qt.ControlModifier)
            compare(view.contentY, 0)
            compare(input.selectionEnd, input.length)
        }

        function test_wheelGoesOnAtTheEnd() {
            const page = open(lines(40))
            const view = page.editor.flickable
            mouseWheel(page.editor, 300, 100, 0, -120)
            tryVerify(() => view.contentY > 0)
            view.contentY = view.contentHeight - view.height
            wait(0)
            const outer = createTemporaryQmlObject("import QtQuick; MouseArea { anchors.fill: parent; z: -1; property int turns: 0; onWheel: ++turns }", root)
            mouseWheel(page.editor, 300, 100, 0, -120)
            compare(outer.turns, 1)
        }

        function test_longLinesScrollSidewaysUnlessWrapped() {
            const page = open("x ".repeat(400))
            const view = page.editor.flickable, input = page.editor.input
            compare(view.contentWidth, view.width)
            verify(input.lineCount > 1)
            page.editor.wrap = false
            tryVerify(() => view.contentWidth > 4000)
            keyClick(Qt.Key_End, Qt.ControlModifier)
            verify(view.contentX > 3000)
            keyClick(Qt.Key_Home)
            compare(view.contentX, 0)
        }
    }
}
