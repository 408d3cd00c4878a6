import QtQuick
import QtTest
import Orvel.Pages
import Orvel.Session
import Orvel.Testing

/// The head of a page, worked with real mouse and key events; what counts in the end is what stands in the
/// file.
Item {
    id: root

    property PageHeader header

    width: 900
    height: 700

    Component {
        id: head

        PageHeader {
            focus: true
            height: implicitHeight
            width: 720
        }
    }

    ScreenTestCase {
        id: test

        name: "PageHeader"
        scene: root.header

        SignalSpy {
            id: leaving
            signalName: "leaveDown"
            target: root.header
        }

        SignalSpy {
            id: zen
            signalName: "zenRequested"
            target: root.header
        }

        function init() {
            Workspace.reset()
        }

        function open(pageID) {
            Orvel.ui.select("page/" + pageID.toUpperCase())
            root.header = createTemporaryObject(head, root, { pageID: pageID })
            root.header.forceActiveFocus()
            waitForRendering(root.header)
            leaving.clear()
            zen.clear()
        }

        function overlay() {
            let top = root
            while (top.parent)
                top = top.parent
            return top
        }

        function choose(button, ...entries) {
            click(button)
            for (const entry of entries) {
                tryVerify(() => find(entry, overlay()) !== null, 2000, "offers " + entry)
                tryVerify(() => find(entry, overlay()).menu.opened)
                mouseClick(find(entry, overlay()))
            }
        }

        function page(index = 0) {
            return JSON.parse(Workspace.saved()).pages[index]
        }

        function test_titleIsSavedAsItIsTyped() {
            open(Workspace.addPage("Plan"))
            const field = find("Title")
            verify(field.activeFocus)
            type("s 2")
            compare(page().title, "Plans 2")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(page().title, field.text)
            keyClick(Qt.Key_A, Qt.ControlModifier)
            keyClick(Qt.Key_Delete)
            compare(page().title, "")
            verify(find("Untitled") || field.placeholderText === "Untitled")
        }

        function test_aFirstTitleIsReplaced() {
            open(Workspace.addPage("Untitled"))
            type("a")
            compare(page().title, "a")
            keyClick(Qt.Key_Tab)
            compare(leaving.count, 1)
        }

        function test_titleStaysOneLine() {
            open(Workspace.addPage("Plan"))
            const field = find("Title")
            const height = field.height
            keyClick(Qt.Key_Return)
            compare(leaving.count, 1)
            compare(page().title, "Plan")
            keyClick(Qt.Key_Home)
            Composer.commit("one\ntwo ")
            compare(page().title, "one two Plan")
            compare(field.text, "one two Plan")
            compare(field.cursorPosition, 8)
            compare(field.height, height)
        }

        function test_longTitlesWrap() {
            open(Workspace.addPage("Plan"))
            const field = find("Title")
            const height = field.height
            keyClick(Qt.Key_A, Qt.ControlModifier)
            Composer.commit("A title that goes on and on ".repeat(4))
            verify(field.height > 2 * height)
            verify(root.header.implicitHeight > field.height)
            keyClick(Qt.Key_Home)
            field.cursorPosition = 3
            keyClick(Qt.Key_Down)
            compare(leaving.count, 0)
            verify(field.cursorPosition > 10)
            keyClick(Qt.Key_Up)
            compare(field.cursorPosition, 3)
            keyClick(Qt.Key_Up)
            compare(field.cursorPosition, 3)
            for (let i = 0; i < 20 && leaving.count === 0; ++i)
                keyClick(Qt.Key_Down)
            compare(leaving.count, 1)
        }

        function test_composingKeepsTheTitle() {
            open(Workspace.addPage(""))
            Composer.compose("に")
            keyClick(Qt.Key_Return)
            compare(leaving.count, 0)
            Composer.commit("日本")
            compare(page().title, "日本")
        }

        function test_followsTheTitleOfOthers() {
            const id = Workspace.addPage("Plan")
            open(id)
            type("x")
            compare(page().title, "Planx")
            const field = find("Title")
            field.cursorPosition = 2
            Workspace.renamePage(id, "Plan of the day")
            tryCompare(field, "text", "Plan of the day")
            compare(field.cursorPosition, 2)
        }

        function test_wordsOfPagesAndNotes() {
            open(Workspace.addPage("Plan"))
            for (const words of ["Home", "Page", "Edited Today", "0 words", "1 min read", "Saved"])
                verify(find(words), words)
            verify(!find("Note"))
            choose("More", "Convert to note")
            compare(page().kind, "note")
            tryVerify(() => find("All notes"))
            verify(find("Note"))
            click("All notes")
            compare(Orvel.ui.selection.text, "notes")
        }

        function test_marksFavorites() {
            open(Workspace.addPage("Plan"))
            click("Favorite")
            compare(page().isFavorite, true)
            tryVerify(() => find("Favorite").Accessible.checked)
            click("Favorite")
            compare(page().isFavorite, false)
        }

        function test_choosesAnIcon() {
            open(Workspace.addPage("Plan"))
            click("Icon, 📄")
            tryVerify(() => find("🌸", overlay()) !== null)
            mouseClick(find("🧭", overlay()))
            compare(page().icon, "🧭")
            tryVerify(() => find("🌸", overlay()) === null)

            find("Icon, 🧭").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            tryCompare(focused().Accessible, "name", "🧭")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "🎨")
            keyClick(Qt.Key_Return)
            compare(page().icon, "🎨")
            tryVerify(() => find("🌸", overlay()) === null)
            compare(focused().Accessible.name, "Icon, 🎨")
        }

        function test_copies() {
            open(Workspace.addNote("Plan", "one\ntwo"))
            const paste = createTemporaryQmlObject("import QtQuick\nTextEdit { }", root)
            choose("Copy", "Copy as plain text")
            paste.paste()
            compare(paste.text, "Plan\none\ntwo")
            choose("Copy", "Copy as Markdown")
            paste.selectAll()
            paste.paste()
            compare(paste.text, "# Plan\n\none\n\ntwo\n")
        }

        function test_movesToFolders() {
            const folder = Workspace.addFolder("Travel & more")
            open(Workspace.addPage("Plan"))
            choose("More", "Move to folder", "Travel & more")
            compare(page().folderID.toLowerCase(), folder)
            choose("More", "Move to folder", "None")
            compare(page().folderID, undefined)
        }

        function test_duplicatesAndDeletes() {
            open(Workspace.addPage("Plan"))
            choose("More", "Duplicate page")
            compare(page(1).title, "Plan copy")
            choose("More", "Delete page")
            compare(page(0).title, "Plan copy")
            compare(page(1), undefined)
            compare(Orvel.ui.selection.text, "dashboard")
        }

        function test_asksForZen() {
            open(Workspace.addPage("Plan"))
            click("Zen mode")
            compare(zen.count, 1)
        }
    }
}
