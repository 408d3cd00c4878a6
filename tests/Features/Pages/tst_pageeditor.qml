import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session
import Orvel.Testing

/// The real editor, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property PageEditorView view

    height: 700
    width: 1000

    Component {
        id: screen

        PageEditorView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "PageEditor"
        scene: root

        function init() {
            Workspace.reset()
        }

        /// Opens a page of blocks, each a text or an object of the block's fields.
        function open(blocks) {
            const id = Workspace.addPageOf(blocks.map(block => typeof block === "string" ? { text: block } : block))
            root.view = createTemporaryObject(screen, root, { pageID: id })
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function saved() {
            return JSON.parse(Workspace.saved()).pages[0]
        }

        function texts() {
            return saved().content.map(block => block.text).join("|")
        }

        function idText(id) {
            return id.toString().replace(/[{}]/g, "").toLowerCase()
        }

        function types() {
            return saved().content.map(block => block.type).join(" ")
        }

        /// Everything below the item that passes the check and is seen.
        function all(item, check) {
            let found = check(item) ? [item] : []
            for (let i = 0; i < item.children.length; ++i)
                if (item.children[i].visible && item.children[i].opacity > 0)
                    found = found.concat(all(item.children[i], check))
            return found
        }

        function one(check, message) {
            let found = []
            tryVerify(() => { found = all(root.parent, check); return found.length > 0 }, 2000, message)
            return found[0]
        }

        function named(name, type) {
            return one(item => (item.text === name || item.title === name || item.Accessible.name === name)
                               && (type === undefined || item instanceof type), "There is " + name)
        }

        function gone(type) {
            tryVerify(() => all(root.parent, item => item instanceof type).length === 0, 2000, "It is gone")
        }

        function fields() {
            return all(root.parent, item => item instanceof BlockField)
        }

        function field(text) {
            return one(item => item instanceof BlockField && item.text === text, "There is a field " + text)
        }

        /// Puts the caret into the field of this text.
        function edit(text, position) {
            const target = field(text)
            mouseClick(target, 4, target.height / 2)
            verify(target.activeFocus)
            target.cursorPosition = position ?? target.length
            return target
        }

        /// The focus is in the field of this text, with the caret there.
        function at(text, position) {
            tryVerify(() => focused() instanceof BlockField && focused().text === text, 2000, "In " + text)
            if (position !== undefined)
                compare(focused().cursorPosition, position)
        }

        /// Clicks once the item stands still: rows that have just changed places are still on their way.
        function click(item) {
            let last
            tryVerify(() => {
                const before = last
                last = item.mapToItem(root, 0, 0).y
                return last === before
            })
            mouseClick(item)
        }

        function choose(name) {
            const item = named(name, OVMenuItem)
            tryCompare(item.menu, "opened", true)
            mouseClick(item)
        }

        function test_writesWhatIsTyped() {
            open(["one", "three"])
            const before = saved().updatedDate
            Workspace.advanceHours(1)
            edit("one")
            type("!")
            compare(texts(), "one!|three")
            verify(saved().updatedDate !== before)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(texts(), "one|three")
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            compare(texts(), "one!|three")
        }

        function undo() {
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            wait(0)
        }

        function redo() {
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            wait(0)
        }

        function test_undoTakesBackAboutAWord() {
            open(["one", "end"])
            edit("one")
            type(" two three")
            undo()
            at("one two ", 8)
            undo()
            compare(texts(), "one |end")
            edit("end", 0)
            type("the ")
            undo()
            at("end", 0)
            undo()
            at("one", 3)
            redo()
            redo()
            compare(texts(), "one |the end")
            at("the end", 4)
            const title = one(item => item instanceof PageTitleField)
            mouseClick(title)
            keyClick(Qt.Key_End)
            type("!")
            const named = saved().title
            undo()
            compare(saved().title + "!", named)
            verify(title.activeFocus)
            undo()
            at("end", 0)
            compare(texts(), "one |end")
        }

        function test_undoBringsBackBlocks_data() {
            const keys = (key, modifiers) => () => keyClick(key, modifiers ?? Qt.NoModifier)
            return [
                { tag: "new", act: keys(Qt.Key_Return), text: "two" },
                { tag: "move", act: keys(Qt.Key_Down, Qt.ControlModifier | Qt.ShiftModifier), text: "two" },
                { tag: "type", act: () => root.view.editor.changeType(saved().content[1].id, 1), text: "two" },
                { tag: "check", act: keys(Qt.Key_Space), text: "two", focuses: "Backtab" },
                { tag: "delete", act: () => root.view.editor.deleteBlock(saved().content[1].id), text: "two" },
                { tag: "duplicate", act: () => root.view.editor.duplicateBlock(saved().content[1].id), text: "two" }
            ]
        }

        function test_undoBringsBackBlocks(data) {
            open(["one", { type: "checklist", text: "two" }, "three"])
            edit("two", 2)
            if (data.focuses)
                keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            const before = Workspace.saved()
            data.act()
            wait(0)
            const after = Workspace.saved()
            verify(after !== before)
            undo()
            compare(Workspace.saved(), before)
            if (!data.focuses)
                at(data.text)
            redo()
            compare(Workspace.saved(), after)
            verify(focused() instanceof BlockField || data.focuses)
            undo()
            compare(Workspace.saved(), before)
        }

        function test_returnMakesAParagraphBelow() {
            open([{ type: "checklist", text: "one" }, "three"])
            edit("one", 1)
            keyClick(Qt.Key_Return)
            at("", 0)
            type("two")
            compare(texts(), "one|two|three")
            compare(types(), "checklist paragraph paragraph")
            for (let i = 0; i < 5; ++i)
                keyClick(Qt.Key_Backspace)
            compare(texts(), "one||three")
            keyClick(Qt.Key_Return, Qt.ShiftModifier)
            at("", 0)
            compare(texts(), "one|||three")
        }

        function test_keepsUpWithFastKeys() {
            open(["one", "three"])
            edit("one")
            Composer.typeAtOnce("!\ntwo\n\nmore")
            compare(texts(), "one!|two||more|three")
            const swap = Qt.ControlModifier | Qt.ShiftModifier
            Composer.press(Qt.Key_Up, swap)
            Composer.press(Qt.Key_Up, swap)
            Composer.press(Qt.Key_Down, Qt.NoModifier)
            Composer.typeAtOnce("x")
            compare(texts(), "one!|more|twox||three")
        }

        /// Whatever is typed stands in the file as it stands in the fields, and none of it is lost.
        function test_keepsEverythingUnderRandomKeys() {
            let seed = 20
            const random = count => {
                seed = (seed * 16807) % 2147483647
                return seed % count
            }
            open(["one", { type: "checklist", text: "two" }, { type: "quote", text: "" }, { type: "numbered", text: "4" }])
            edit("one")
            const first = Workspace.saved()
            let marks = ""
            const swap = Qt.ControlModifier | Qt.ShiftModifier
            const mark = () => {
                const text = String.fromCharCode(0x4e00 + marks.length)
                marks += text
                return text
            }
            const acts = [
                () => Composer.commit(mark()),
                () => Composer.commit(mark()),
                () => Composer.compose("にほ"),
                () => keyClick(Qt.Key_Return),
                () => keyClick(Qt.Key_Up),
                () => keyClick(Qt.Key_Down),
                () => keyClick(Qt.Key_Left),
                () => keyClick(Qt.Key_Home),
                () => keyClick(Qt.Key_Up, swap),
                () => keyClick(Qt.Key_Down, swap),
                () => keyClick(Qt.Key_Tab),
                () => keyClick(Qt.Key_Tab, Qt.ShiftModifier),
                () => {
                    if (!(focused() instanceof BlockField))
                        return
                    Composer.copy(mark() + "\n" + mark())
                    keyClick(Qt.Key_V, Qt.ControlModifier)
                },
                () => root.view.editor.changeType(saved().content[random(saved().content.length)].id, random(9)),
                () => root.view.editor.duplicateBlock(saved().content[random(saved().content.length)].id)
            ]
            for (let step = 0; step < 80; ++step) {
                if (!(focused() instanceof BlockField))
                    root.view.list.focusBlock(random(saved().content.length), 0)
                acts[random(acts.length)]()
                Composer.commit("")
                wait(0)
                compare(root.view.list.count, saved().content.length)
                const stored = {}
                for (const block of saved().content)
                    stored[block.id.toLowerCase()] = block.text
                for (const row of all(root.view.list, item => item instanceof BlockRow))
                    for (const shown of all(row, item => item instanceof BlockField))
                        compare(shown.text, stored[idText(row.blockID)], "Step " + step + ", row " + row.index)
            }
            const whole = texts()
            verify(marks.length > 12)
            for (const text of marks)
                verify(whole.includes(text), "There is " + text)

            // All the way back and forth again, through the same states.
            const states = [Workspace.saved()]
            while (states[states.length - 1] !== first) {
                undo()
                states.push(Workspace.saved())
                verify(states.length < 200)
            }
            while (states.length > 0) {
                compare(Workspace.saved(), states.pop())
                redo()
            }
        }

        function test_arrowsKeepTheColumn() {
            open([{ type: "heading1", text: "A heading of some width" }, "short", "A paragraph that is much longer"])
            edit("A paragraph that is much longer", 20)
            const x = () => focused().mapToItem(root, focused().cursorRectangle.x, 0).x
            const start = x()
            keyClick(Qt.Key_Up)
            at("short", 5)
            keyClick(Qt.Key_Up)
            at("A heading of some width")
            fuzzyCompare(x(), start, 12)
            keyClick(Qt.Key_Up)
            tryVerify(() => !(focused() instanceof BlockField))
            keyClick(Qt.Key_Down)
            at("A heading of some width", 0)
            keyClick(Qt.Key_Down)
            at("short", 0)
        }

        function test_arrowsStayInALongBlock() {
            open(["word ".repeat(60).trim(), "next"])
            const text = edit("word ".repeat(60).trim(), 0)
            verify(text.lineCount > 2)
            for (let line = 1; line < text.lineCount; ++line) {
                keyClick(Qt.Key_Down)
                verify(text.activeFocus)
            }
            keyClick(Qt.Key_Down)
            at("next", 0)
        }

        function test_movesBlocksWithTheCaret() {
            open(["one", "two", "three"])
            edit("one", 2)
            keyClick(Qt.Key_Down, Qt.ControlModifier | Qt.ShiftModifier)
            tryVerify(() => texts() === "two|one|three")
            at("one", 2)
            type("x")
            keyClick(Qt.Key_Down, Qt.ControlModifier | Qt.ShiftModifier)
            keyClick(Qt.Key_Down, Qt.ControlModifier | Qt.ShiftModifier)
            compare(texts(), "two|three|onxe")
            at("onxe", 3)
            keyClick(Qt.Key_Up, Qt.ControlModifier | Qt.ShiftModifier)
            compare(texts(), "two|onxe|three")
        }

        function test_pastesLinesAsBlocks() {
            open([{ type: "bulleted", text: "one two" }, "end"])
            edit("one two", 4)
            Composer.copy("a\nb\n\nc")
            keyClick(Qt.Key_V, Qt.ControlModifier)
            at("ctwo", 1)
            compare(texts(), "one a|b|ctwo|end")
            compare(types(), "bulleted paragraph paragraph paragraph")
            compare(new Set(saved().content.map(block => block.id)).size, 4)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(texts(), "one two|end")
            at("one two", 4)
            keyClick(Qt.Key_Y, Qt.ControlModifier)
            compare(texts(), "one a|b|ctwo|end")
            edit("end")
            Composer.copy("!\n")
            keyClick(Qt.Key_V, Qt.ControlModifier)
            compare(texts(), "one a|b|ctwo|end!")
            compare(focused().text, "end!")
        }

        function test_selectsWithTheMouse() {
            const blocks = []
            for (let i = 0; i < 60; ++i)
                blocks.push("A line of some length " + i)
            open(blocks)
            const text = field("A line of some length 9")
            mousePress(text, 150, text.height / 2)
            for (let way = 10; way < 140; way += 10)
                mouseMove(text, 150 - way, text.height / 2, -1, Qt.LeftButton)
            verify(text.selectedText.length > 5)
            mouseRelease(text, 10, text.height / 2)
            verify(text.activeFocus)
            type("x")
            verify(texts().includes("|" + text.text + "|"))
        }

        /// The rows that look selected.
        function selectedRows() {
            return all(root.view.list, item => item instanceof BlockRow && item.isSelected).map(row => row.index).sort((a, b) => a - b).join(" ")
        }

        function test_selectsBlocksWithTheMouse() {
            const blocks = []
            for (let i = 0; i < 60; ++i)
                blocks.push("A line of some length " + i)
            open(blocks)
            const text = field("A line of some length 5")
            mousePress(text, 150, text.height / 2)
            for (let way = 10; way < 100; way += 10)
                mouseMove(text, 150, text.height / 2 - way, -1, Qt.LeftButton)
            tryVerify(() => selectedRows() === "3 4 5" || selectedRows() === "2 3 4 5")
            compare(text.selectedText, "")
            compare(root.view.list.contentY, root.view.list.originY)
            mouseMove(text, 150, text.height / 2, -1, Qt.LeftButton)
            tryVerify(() => selectedRows() === "5")
            mouseRelease(text, 150, text.height / 2)
            mouseClick(field("A line of some length 7"), 20, 10, Qt.LeftButton, Qt.ShiftModifier)
            tryVerify(() => selectedRows() === "5 6 7")
            keyClick(Qt.Key_Delete)
            at("A line of some length 8")
            compare(selectedRows(), "")
            verify(texts().includes("length 4|A line of some length 8"))
            mouseClick(field("A line of some length 9"), 20, 10, Qt.LeftButton, Qt.ShiftModifier)
            tryVerify(() => selectedRows() === "5 6")
            mouseClick(field("A line of some length 2"), 20, 10)
            compare(selectedRows(), "")
            at("A line of some length 2")
        }

        function test_selectsBlocksWithKeys() {
            open(["one", "two", { type: "divider" }, "three", "four"])
            edit("two", 3)
            keyClick(Qt.Key_Right, Qt.ShiftModifier)
            compare(selectedRows(), "1 2")
            keyClick(Qt.Key_Down, Qt.ShiftModifier)
            compare(selectedRows(), "1 2 3")
            keyClick(Qt.Key_Down, Qt.ControlModifier | Qt.ShiftModifier)
            tryVerify(() => selectedRows() === "2 3 4")
            compare(texts(), "one|four|two||three")
            keyClick(Qt.Key_C, Qt.ControlModifier)
            keyClick(Qt.Key_Escape)
            at("three")
            compare(selectedRows(), "")
            keyClick(Qt.Key_A, Qt.ControlModifier)
            compare(focused().selectedText, "three")
            keyClick(Qt.Key_A, Qt.ControlModifier)
            compare(selectedRows(), "0 1 2 3 4")
            type("x")
            at("x", 1)
            type("yz")
            compare(texts(), "xyz")
            keyClick(Qt.Key_V, Qt.ControlModifier)
            at("three")
            compare(texts(), "xyztwo||three")
            compare(types(), "paragraph divider paragraph")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            tryVerify(() => texts() === "one|four|two||three")
        }

        function test_worksOnSelectedBlocks() {
            open(["one", "two", "three", "four"])
            edit("two", 0)
            keyClick(Qt.Key_Down, Qt.ShiftModifier)
            compare(selectedRows(), "1 2")
            // The grip of one of them drags all.
            mouseMove(field("three"))
            const grip = named("Block menu", OVIconButton)
            const steps = grip.mapFromItem(field("one"), 0, 0).y - 20
            mousePress(grip)
            for (let way = 0; way >= steps; way -= 10)
                mouseMove(grip, 5, way, -1, Qt.LeftButton)
            mouseRelease(grip, 5, steps)
            tryVerify(() => texts() === "two|three|one|four")
            tryVerify(() => selectedRows() === "0 1")
            keyClick(Qt.Key_Menu)
            choose("Duplicate")
            tryVerify(() => selectedRows() === "2 3")
            compare(texts(), "two|three|two|three|one|four")
            Composer.commit("中文")
            at("中文", 2)
            compare(texts(), "two|three|中文|one|four")
            compare(selectedRows(), "")
        }

        function test_drawsLinksWhereTheCaretIsNot() {
            open(["see https://a.example/b. and", "end"])
            const text = field("see https://a.example/b. and")
            const place = text.positionToRectangle(10)
            verify(root.view.editor.linkIn(text.text, 10) === "https://a.example/b")
            mouseClick(text, place.x, place.y + 5, Qt.RightButton)
            choose("Copy link")
            edit("end", 3)
            keyClick(Qt.Key_V, Qt.ControlModifier)
            at("endhttps://a.example/b")
        }

        function test_keepsTheLineInTheMiddleInZenMode() {
            const blocks = []
            for (let i = 0; i < 60; ++i)
                blocks.push("Line " + i)
            open(blocks)
            edit("Line 3")
            root.view.editor.isZen = true
            at("Line 3")
            for (let i = 0; i < 30; ++i)
                keyClick(Qt.Key_Down)
            at("Line 33")
            const middle = () => focused().mapToItem(root.view.list, 0, focused().height / 2).y
            tryVerify(() => Math.abs(middle() - root.view.list.height / 2) < 20)
            keyClick(Qt.Key_End, Qt.ControlModifier)
            type("x")
            tryVerify(() => Math.abs(middle() - root.view.list.height / 2) < 20)
            root.view.editor.isZen = false
        }

        function test_growsWithItsText() {
            open(["", "below"])
            const below = field("below")
            const before = below.mapToItem(root, 0, 0).y
            edit("")
            type("word ".repeat(30))
            tryVerify(() => below.mapToItem(root, 0, 0).y > before + 20)
            compare(texts(), "word ".repeat(30) + "|below")
            compare(focused().effectiveHorizontalAlignment, TextEdit.AlignLeft)
            focused().selectAll()
            Composer.commit("مرحبا بكم")
            compare(focused().effectiveHorizontalAlignment, TextEdit.AlignRight)
            tryVerify(() => below.mapToItem(root, 0, 0).y < before + 20)
            compare(texts(), "مرحبا بكم|below")
        }

        function test_composesText() {
            open(["日"])
            edit("日")
            Composer.compose("ほ")
            compare(texts(), "日")
            keyClick(Qt.Key_Down)
            Composer.compose("ほん")
            Composer.commit("本")
            compare(texts(), "日本")
            compare(focused().cursorPosition, 2)
            Composer.commit("👩‍👩‍👧")
            compare(texts(), "日本👩‍👩‍👧")
        }

        function test_keepsWhatItOnlyShows() {
            open(["a\u00a0b", "two\nlines", ""])
            compare(texts(), "a\u00a0b|two\nlines|")
            edit("a b")
            type("c")
            compare(texts(), "a\u00a0bc|two\nlines|")
            edit("two\nlines")
            type("!")
            compare(texts(), "a\u00a0bc|two\nlines!|")
        }

        function test_slashMenu() {
            open(["", "two"])
            edit("")
            type("/he")
            tryCompare(named("BASIC BLOCKS", OVText), "visible", true)
            compare(all(root.parent, item => item instanceof SlashMenuItem).map(item => item.text).join(),
                    "Heading 1,Heading 2,Heading 3,To-do")
            keyClick(Qt.Key_Escape)
            gone(SlashMenuItem)
            at("/he", 3)
            keyClick(Qt.Key_Backspace)
            click(named("Heading 2", SlashMenuItem))
            at("", 0)
            gone(SlashMenuItem)
            type("Title")
            compare(texts(), "Title|two")
            compare(types(), "heading2 paragraph")
            compare(saved().content.length, 2)
        }

        function test_slashMenuLeavesReturnAlone() {
            open(["/c"])
            edit("/c")
            named("Code", SlashMenuItem)
            keyClick(Qt.Key_Return)
            at("", 0)
            gone(SlashMenuItem)
            compare(types(), "paragraph paragraph")
            compare(texts(), "/c|")
        }

        function test_checksATodo() {
            open([{ type: "checklist", text: "milk" }])
            click(named("milk", OVCheckBox))
            verify(saved().content[0].checked)
            compare(named("milk", OVCheckBox).checked, true)
            edit("milk")
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            verify(focused() instanceof OVCheckBox)
            keyClick(Qt.Key_Space)
            verify(!saved().content[0].checked)
            keyClick(Qt.Key_Tab)
            at("milk")
        }

        function test_choosesATone() {
            open([{ type: "callout", text: "Mind" }])
            click(named("Tone: info", OVPressable))
            choose("warning")
            compare(saved().content[0].tone, "warning")
        }

        function test_blockMenuByMouse() {
            open(["one", "two"])
            const target = field("two")
            mouseMove(target, 20, 10)
            click(named("Add a block below", OVIconButton))
            at("", 0)
            compare(texts(), "one|two|")
            mouseMove(target, 20, 10)
            click(one(item => item instanceof OVIconButton && item.text === "Block menu"
                                   && Math.abs(item.mapToItem(target, 0, 0).y) < 20))
            choose("Duplicate")
            compare(texts(), "one|two|two|")
        }

        function test_blockMenuByKeys() {
            open(["one", "two"])
            edit("one", 1)
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            const turn = named("Turn into", OVMenuItem)
            tryCompare(turn.menu, "opened", true)
            verify(!named("Move up", OVMenuItem).enabled)
            keyClick(Qt.Key_Right)
            const heading = named("Heading 1", OVMenuItem)
            tryCompare(heading.menu, "opened", true)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            tryVerify(() => types() === "heading1 paragraph")
            at("one", 1)
            keyClick(Qt.Key_Menu)
            tryCompare(named("Delete", OVMenuItem).menu, "opened", true)
            keyClick("d")
            keyClick("d")
            keyClick(Qt.Key_Return)
            at("two")
            compare(texts(), "two")
        }

        function test_pastesBlocksFromTheEditMenu() {
            open([{ text: "one", type: "heading2" }, { text: "two", type: "checklist" }, "", "end"])
            edit("end", 0)
            const ids = saved().content.map(block => block.id)
            const selection = root.view.editor.selection
            selection.select(ids[0], ids[1])
            selection.copy()
            selection.clear()
            const target = root.view.list.itemAtIndex(2).part.input
            target.forceActiveFocus()
            target.editTarget.paste()
            tryVerify(() => texts() === "one|two|one|two|end")
            compare(types(), "heading2 checklist heading2 checklist paragraph")
        }

        function test_keepsTheCaretInAnotherType() {
            open(["two words", "end"])
            edit("two words", 4)
            const id = root.view.list.rowAt(0).blockID
            const code = 9
            root.view.editor.changeType(id, code)
            tryVerify(() => !(focused() instanceof BlockField) && focused().text === "two words")
            compare(focused().cursorPosition, 4)
            type("x")
            const quote = 7
            root.view.editor.changeType(id, quote)
            at("two xwords", 5)
        }

        function test_runsCode() {
            const code = "{\"a\":\u00a01}"
            open([{ type: "code", text: code, language: "json" }, "after"])
            one(item => item.text === "1 lines")
            click(named("Run code", OVIconButton))
            one(item => item.text === "Failed" || item.text === "Succeeded")
            click(named("Copy code", OVIconButton))
            compare(Composer.copied(), code)
            click(named("Hide output", OVIconButton))
            tryVerify(() => all(root.parent, item => item instanceof CodeConsole).length === 0)
            const source = one(item => item instanceof CodeEditor).input
            mouseClick(source)
            source.cursorPosition = source.length
            keyClick(Qt.Key_Return)
            type("x")
            compare(texts(), code + "\nx|after")
            one(item => item.text === "2 lines")
            keyClick(Qt.Key_Down, Qt.ControlModifier | Qt.ShiftModifier)
            tryVerify(() => texts() === "after|" + code + "\nx")
            verify(source.activeFocus)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Up)
            at("after")
            keyClick(Qt.Key_Down)
            verify(source.activeFocus)
            keyClick(Qt.Key_Tab, Qt.ControlModifier | Qt.ShiftModifier)
            compare(focused().text, "Copy code")
            click(named("Language: JSON", OVMenuButton))
            choose("HTML")
            compare(saved().content[1].language, "html")
            named("HTML is markup  -  there is nothing to run.", OVIconButton)
        }

        function test_resultsStayWhileTheirBlockIsOutOfSight() {
            const blocks = [{ type: "code", text: "[1, 2]", language: "json" }]
            for (let i = 0; i < 200; ++i)
                blocks.push("Block " + i)
            open(blocks)
            click(named("Run code", OVIconButton))
            one(item => item.text === "Succeeded")
            const list = root.view.list
            list.positionViewAtEnd()
            tryVerify(() => all(root.parent, item => item instanceof CodeConsole).length === 0)
            list.positionViewAtBeginning()
            one(item => item.text === "Succeeded")
        }

        function test_tabGoesThroughTheBlocks() {
            open(["one", { type: "checklist", text: "two" }, { type: "divider" }])
            edit("one")
            keyClick(Qt.Key_Tab)
            verify(focused() instanceof OVCheckBox)
            keyClick(Qt.Key_Tab)
            at("two")
            keyClick(Qt.Key_Tab)
            verify(focused() instanceof DividerBlock)
            keyClick(Qt.Key_Tab)
            compare(focused().text, "Add a block")
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            verify(focused() instanceof DividerBlock)
            keyClick(Qt.Key_Up)
            at("two")
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            at("one")
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            tryVerify(() => !(focused() instanceof BlockField))
        }

        function test_addsABlockAtTheEnd() {
            open(["one"])
            click(named("Add a block", OVPressable))
            at("", 0)
            compare(texts(), "one|")
        }

        function test_zen() {
            open(["one", "/two"])
            edit("/two")
            const editor = root.view.editor
            editor.isZen = true
            tryVerify(() => all(root.parent, item => item instanceof OVSecondaryButton).length === 1)
            at("/two", 4)
            compare(fields().length, 2)
            compare(all(root.parent, item => item.text === "Add a block").length, 0)
            keyClick(Qt.Key_Tab)
            compare(focused().text, "Exit")
            keyClick(Qt.Key_Tab, Qt.ShiftModifier)
            at("/two")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Delete)
            type("/t")
            keyClick(Qt.Key_End)
            while (focused().length > 2)
                keyClick(Qt.Key_Backspace)
            named("Text", SlashMenuItem)
            keyClick(Qt.Key_Escape)
            gone(SlashMenuItem)
            compare(editor.isZen, true)
            keyClick(Qt.Key_Escape)
            compare(editor.isZen, false)
            tryVerify(() => all(root.parent, item => item instanceof OVSecondaryButton).length === 0)
            at("/t")
            compare(texts(), "one|/t")
        }

        /// Where the caret stands in the list, in its pixels.
        function caretTop() {
            return focused().mapToItem(root.view.list, 0, focused().cursorRectangle.y).y
        }

        function caretIsInView(room) {
            tryVerify(() => caretTop() >= room
                            && caretTop() + focused().cursorRectangle.height <= root.view.list.height - room,
                      2000, "The caret keeps " + room + " pixels, at " + caretTop())
        }

        function numberedTexts(count) {
            return Array.from({ length: count }, (_, index) => "Block " + index)
        }

        function test_emptyBlocksAreAsHighAsFilledOnes_data() {
            return ["paragraph", "heading1", "heading3", "bulleted", "quote", "callout"].map(type => ({ tag: type }))
        }

        function test_emptyBlocksAreAsHighAsFilledOnes(data) {
            open([{ type: data.tag, text: "" }, "below"])
            const empty = field("")
            const place = () => field("below").mapToItem(root, 0, 0).y
            const before = place()
            mouseClick(empty, 4, empty.height / 2)
            type("x")
            waitForRendering(root.view)
            compare(place(), before)
            keyClick(Qt.Key_Backspace)
            waitForRendering(root.view)
            compare(place(), before)
            Composer.compose("ほ")
            compare(place(), before)
        }

        function test_returnAtTheLowerEdgeKeepsRoom() {
            open(numberedTexts(60))
            edit("Block 3")
            for (let i = 0; i < 30; ++i) {
                keyClick(Qt.Key_Return)
                at("", 0)
                caretIsInView(Theme.space24)
            }
        }

        function test_aPastedLongLineStaysInView() {
            open(numberedTexts(300))
            root.view.list.focusBlock(150, 0)
            at("Block 150", 0)
            caretIsInView(0)
            for (let i = 0; i < 3; ++i) {
                Composer.copy("word ".repeat(1500))
                keyClick(Qt.Key_V, Qt.ControlModifier)
                wait(50)
                caretIsInView(Theme.space24)
                verify(focused().text.endsWith("Block 150"))
                compare(root.view.list.currentIndex, 150)
            }
        }

        function test_pageDownGoesByTheView() {
            const blocks = numberedTexts(200)
            blocks.splice(10, 0, { type: "code", text: "let a = 1" })
            blocks.splice(30, 0, "word ".repeat(2000).trim())
            open(blocks)
            const list = root.view.list
            edit("Block 9")
            keyClick(Qt.Key_Down)
            const code = focused()
            compare(code.text, "let a = 1")
            const line = () => focused().mapToItem(list.contentItem, 0, focused().cursorRectangle.y).y
            keyClick(Qt.Key_PageDown)
            verify(focused() !== code, "A short code block lets Page Down through")
            for (let i = 0; i < 8; ++i) {
                const before = line()
                keyClick(Qt.Key_PageDown)
                caretIsInView(0)
                const distance = line() - before
                verify(distance > list.height * 0.7 && distance < list.height * 1.1, "By " + distance)
            }
            const before = line()
            keyClick(Qt.Key_PageUp)
            caretIsInView(0)
            verify(before - line() > list.height * 0.7)
            for (let i = 0; i < 40; ++i)
                keyClick(Qt.Key_PageDown)
            at("Block 199")
            for (let i = 0; i < 40; ++i)
                keyClick(Qt.Key_PageUp)
            at("Block 0")
        }

        function test_slashMenuStandsBelowAndStays() {
            open(numberedTexts(40))
            edit("Block 5")
            keyClick(Qt.Key_Return)
            type("/")
            const menu = named("BASIC BLOCKS", OVText)
            const top = () => menu.mapToItem(root, 0, 0).y
            wait(300)
            const block = focused()
            verify(top() >= block.mapToItem(root, 0, block.height).y - 1, "It stands below")
            const before = top()
            for (const key of ["h", "e", "a"]) {
                type(key)
                wait(50)
                compare(top(), before)
            }
        }

        function test_codeBlocksShowWrappedLines() {
            open([{ type: "code", text: "let sum = one + two // ".repeat(20) }, "below"])
            const code = one(item => item instanceof CodeEditor)
            verify(code.input.lineCount > 3)
            verify(code.height >= code.fullHeight, code.height + " of " + code.fullHeight)
            verify(code.height < 2 * code.fullHeight)
        }

        function test_numberedListsHaveOneEdge() {
            open(numberedTexts(12).map(text => ({ type: "numbered", text })))
            compare(new Set(fields().map(item => item.mapToItem(root, 0, 0).x)).size, 1)
        }

        function test_toolsOfABlockShowUnderThePointerAlone() {
            open(["one", "two"])
            const tools = () => all(root.parent, item => item instanceof OVIconButton && item.text === "Block menu").length
            const target = edit("two")
            mouseMove(target, 20, 10)
            tryVerify(() => tools() === 1)
            type("x")
            tryVerify(() => tools() === 0)
            keyClick(Qt.Key_Up)
            compare(tools(), 0)
            mouseMove(target, 30, 10)
            tryVerify(() => tools() === 1)
        }

        function test_dragsABlockByItsGrip() {
            open(["one", "two", "three", "four"])
            const target = field("one")
            mouseMove(target, 20, 10)
            const grip = named("Block menu", OVIconButton)
            const y = text => field(text).mapToItem(grip, 0, field(text).height).y
            mousePress(grip)
            for (let step = 1; step <= 5; ++step)
                mouseMove(grip, 12, y("three") * step / 5 - 4, -1, Qt.LeftButton)
            compare(texts(), "one|two|three|four")
            mouseRelease(grip, 12, y("three") - 4)
            tryVerify(() => texts() === "two|three|one|four")
            compare(all(root.parent, item => item instanceof OVMenuItem).length, 0)
            wait(Theme.durationRemoval + 50)
            mouseMove(field("four"), 20, 10)
            const last = named("Block menu", OVIconButton)
            const from = last.mapToItem(root, 12, 12)
            mousePress(root, from.x, from.y)
            for (let step = 1; step <= 5; ++step)
                mouseMove(root, from.x, from.y - 20 * step, -1, Qt.LeftButton)
            keyClick(Qt.Key_Escape)
            mouseRelease(root, from.x, from.y - 100)
            compare(texts(), "two|three|one|four")
        }

        function test_aNamedPageTakesKeysAtOnce_data() {
            return [
                { tag: "down", key: Qt.Key_Down, text: "one" },
                { tag: "return", key: Qt.Key_Return, text: "one" },
                { tag: "end", key: Qt.Key_End, modifiers: Qt.ControlModifier, text: "Block 89" },
                { tag: "page down", key: Qt.Key_PageDown, text: "Block" }
            ]
        }

        function test_aNamedPageTakesKeysAtOnce(data) {
            const id = Workspace.addPageOf([{ text: "one" }].concat(numberedTexts(90).map(text => ({ text }))))
            Workspace.renamePage(id, "Named")
            root.view = createTemporaryObject(screen, root, { pageID: id })
            root.view.forceActiveFocus()
            waitForRendering(root.view)
            const before = saved()
            keyClick("x")
            keyClick(Qt.Key_Delete)
            compare(saved(), before)
            keyClick(data.key, data.modifiers ?? Qt.NoModifier)
            tryVerify(() => focused() instanceof BlockField && focused().text.startsWith(data.text))
            compare(saved(), before)
        }

        function test_clicksBesideABlockPlaceTheCaret() {
            open(["one two three", { type: "code", text: "let a" }])
            const text = field("one two three")
            const list = root.view.list
            const y = text.mapToItem(list, 0, text.height / 2).y
            mouseClick(list, list.width - 40, y)
            at("one two three", 13)
            mouseClick(list, 20, y)
            at("one two three", 0)
            mouseClick(list, list.width / 2, list.height - 8)
            compare(focused().text, "let a")
            compare(focused().cursorPosition, 5)
        }

        function test_longTextsAreShownInParts() {
            const pasted = "word ".repeat(100000)
            open(["ab", "end"])
            const text = edit("ab", 1)
            Composer.copy(pasted)
            const start = Date.now()
            keyClick(Qt.Key_V, Qt.ControlModifier)
            tryVerify(() => focused().length > 1000 && focused().cursorPosition === focused().length - 1)
            verify(Date.now() - start < 3000, "Only a part is laid out")
            verify(focused().length < 20000)
            type("!")
            verify(texts() === "a" + pasted + "!b|end")
            click(named("Earlier text", OVIconButton))
            tryVerify(() => focused() instanceof BlockField && focused().cursorPosition === focused().length)
            const earlier = focused().text
            type("?")
            verify(texts().includes(earlier + "?"))
            keyClick(Qt.Key_Down)
            tryVerify(() => focused().text.endsWith("!b") && focused().cursorPosition === 0)
            keyClick(Qt.Key_Up)
            tryVerify(() => focused().text.endsWith("?") && focused().cursorPosition === focused().length)
        }

        function test_aTooLongTitleIsCutAndSaid() {
            open(["one"])
            const title = one(item => item instanceof PageTitleField)
            mouseClick(title)
            Composer.copy("title ".repeat(1000))
            keyClick(Qt.Key_A, Qt.ControlModifier)
            keyClick(Qt.Key_V, Qt.ControlModifier)
            compare(saved().title.length, 1000)
            compare(title.text.length, 1000)
            one(item => item.text === "The title was too long and has been cut to 1000 characters.")
        }

        function test_staysInPlaceInALongPage() {
            const blocks = []
            for (let i = 0; i < 2000; ++i)
                blocks.push("Block " + i)
            open(blocks)
            verify(fields().length < 60, "Only the rows in sight exist")
            edit("Block 5")
            for (let i = 0; i < 30; ++i)
                keyClick(Qt.Key_Down)
            at("Block 35", 7)
            const list = root.view.list
            verify(list.contentY > 0)
            const caret = focused().mapToItem(list, 0, focused().cursorRectangle.y).y
            verify(caret > 0 && caret < list.height)
            const held = focused()
            list.contentY += 3000
            wait(0)
            verify(held.activeFocus)
            type("x")
            tryVerify(() => { const y = held.mapToItem(list, 0, 0).y; return y >= 0 && y < list.height })
            compare(saved().content[35].text, "Block 3x5")
            keyClick(Qt.Key_End, Qt.ControlModifier)
            at("Block 1999")
            keyClick(Qt.Key_Return)
            at("", 0)
            type("end")
            compare(saved().content[2000].text, "end")
        }
    }
}
