import QtQuick
import Orvel.Code
import Orvel.DesignSystem
import Orvel.Session
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property CodeView view

    width: 1000
    height: 640

    Component {
        id: screen

        CodeView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "CodeView"
        scene: root
        visible: true

        function init() {
            Workspace.reset()
            CodeDesk.reset()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        /// The visible item that assistive tools know by this name.
        function find(name, type = Item, from = root.Window.contentItem) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                if (!child.visible)
                    continue
                const found = child.Accessible.name === name && child instanceof type ? child : find(name, type, child)
                if (found)
                    return found
            }
            return null
        }

        function click(name) {
            tryVerify(() => find(name) !== null, 2000, "shows " + name)
            // What has just come into being is put in its place with the next picture.
            waitForRendering(root.view, 100)
            mouseClick(find(name))
        }

        function saved() {
            return JSON.parse(Workspace.saved()).codeDocuments
        }

        function titles() {
            return saved().map(document => document.title).join()
        }

        function shows(text) {
            tryVerify(() => find(text) !== null, 5000, "shows " + text)
        }

        function test_firstSnippet() {
            open()
            shows("Keep small scripts, notes and reusable snippets together.")
            click("New snippet")
            shows("Source of Untitled")
            compare(focused().Accessible.name, "Source of Untitled")
            type("let a")
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Tab)
            type("b")
            compare(saved()[0].source, "let a\n    b")
            compare(saved()[0].title, "Untitled")
            shows("Line 2, column 6")
            shows("2 lines")
            shows("Untitled, Swift · 2 lines")
        }

        function test_opensWhatIsWanted() {
            Workspace.addCode("a", "python", "1")
            const b = Workspace.addCode("b", "sql", "select 2")
            Orvel.ui.selectCodeDocument(b)
            open()
            shows("Source of b")
            compare(find("Source of b").text, "select 2")
            click("a, Python · 1 line")
            shows("Source of a")

            // A user who left it opens it from the palette again.
            Orvel.ui.selectCodeDocument(b)
            shows("Source of b")

            // A new look makes the screen anew, where the user was.
            click("a, Python · 1 line")
            shows("Source of a")
            root.view.destroy()
            open()
            shows("Source of a")
        }

        function test_runsOnce() {
            Workspace.addCode("list", "json", "[1,2]")
            open()
            verify(!find("Console"))
            keyClick(Qt.Key_R, Qt.ControlModifier)
            keyClick(Qt.Key_R, Qt.ControlModifier)
            shows("Console")
            shows("Succeeded")
            shows("JSON")
            compare(find("Output").text, "[\n  1,\n  2\n]")
            click("Copy output")
            shows("Copied")

            // Escape hides the console from wherever the keyboard is.
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Console"))
            compare(focused().Accessible.name, "Source of list")
            click("Run snippet")
            shows("Succeeded")
            click("Hide output")
            tryVerify(() => !find("Console"))
        }

        function test_aRunIsStopped() {
            Workspace.addCode("loop", "shell", "echo begun; sleep 1000")
            Workspace.addCode("other", "shell", "echo other")
            open()
            for (const stop of [() => click("Stop"), () => keyClick(Qt.Key_Escape)]) {
                keyClick(Qt.Key_R, Qt.ControlModifier)
                tryVerify(() => find("Output").text === "begun\n", 10000)
                stop()
                tryVerify(() => find("Stopped"), 5000)
                compare(find("Output").text, "begun\n[stopped]")
                verify(find("Run snippet"))
            }
            // The console is the one of the snippet.
            click("other, Shell · 1 line")
            compare(find("Output").text, "Run the snippet to see its output.")
            verify(!find("Stopped"))
            click("loop, Shell · 1 line")
            verify(find("Stopped"))
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Console"))
        }

        function test_comesBackAsItWasLeft() {
            const text = "a line of text\n".repeat(300)
            Workspace.addCode("a", "python", text)
            Workspace.addCode("b", "python", text)
            open()
            click("Larger text")
            click("Wrap long lines")
            const size = find("Source of a").font.pixelSize
            const view = () => find("Source of a").parent.parent
            find("Source of a").cursorPosition = 2000
            view().contentY = 900
            click("b, Python · 301 lines")
            shows("Source of b")
            compare(find("Source of b").cursorPosition, 0)
            compare(find("Source of b").parent.parent.contentY, 0)
            click("a, Python · 301 lines")
            shows("Source of a")
            compare(find("Source of a").cursorPosition, 2000)
            compare(view().contentY, 900)
            // A new look and another screen make it anew.
            root.view.destroy()
            wait(0)
            open()
            shows("Source of a")
            compare(find("Source of a").cursorPosition, 2000)
            compare(view().contentY, 900)
            compare(find("Source of a").font.pixelSize, size)
            compare(find("Source of a").wrapMode, TextEdit.Wrap)
        }

        function test_deletingAsksByName() {
            Workspace.addCode("precious", "python", "1")
            open()
            click("More")
            click("Delete…")
            tryVerify(() => find("“precious” will be deleted.", Text))
            tryVerify(() => focused().text === "Cancel")
            keyClick(Qt.Key_Return)
            tryVerify(() => !find("“precious” will be deleted.", Text))
            compare(titles(), "precious")
            click("More")
            click("Delete…")
            tryVerify(() => focused().text === "Cancel")
            click("Delete")
            tryCompare(saved(), "length", 0)
        }

        function test_consoleComesBackWithWhatItHeld() {
            Workspace.addCode("list", "json", "[1]")
            open()
            click("Show the console")
            compare(find("Output").text, "Run the snippet to see its output.")
            click("Run snippet")
            shows("Succeeded")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Console"))
            click("Show the console")
            shows("Succeeded")
            compare(find("Output").text, "[\n  1\n]")
            click("Show the console")
            tryVerify(() => !find("Console"))
        }

        function test_undoGoesBackToTheDocumentAndTheCaret() {
            Workspace.addCode("a", "plain", "same")
            Workspace.addCode("b", "plain", "same")
            Orvel.ui.select("code")
            open()
            const sources = () => saved().map(document => document.source).join()
            find("Source of a").cursorPosition = 2
            type("xy")
            click("b, Plain text · 1 line")
            click("Source of b")
            keyClick(Qt.Key_Home)
            type("z")
            compare(sources(), "saxyme,zsame")
            find("Source of b").cursorPosition = 4
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            tryVerify(() => sources() === "saxyme,same")
            tryCompare(find("Source of b"), "cursorPosition", 0)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            tryVerify(() => sources() === "same,same")
            shows("Source of a")
            compare(focused().Accessible.name, "Source of a")
            compare(focused().cursorPosition, 2)
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            tryVerify(() => sources() === "saxyme,same")
            tryCompare(focused(), "cursorPosition", 4)
            keyClick(Qt.Key_Y, Qt.ControlModifier)
            tryVerify(() => sources() === "saxyme,zsame")
            shows("Source of b")
        }

        function test_renamesInPlace() {
            Workspace.addCode("a", "python", "")
            open()
            click("a, Python · 1 line")
            keyClick(Qt.Key_F2)
            compare(focused().Accessible.name, "Title")
            type("new name")
            keyClick(Qt.Key_Return)
            compare(titles(), "new name")
            compare(focused().Accessible.name, "Source of new name")
            click("Title")
            keyClick(Qt.Key_A, Qt.ControlModifier)
            type("  ")
            keyClick(Qt.Key_Return)
            compare(titles(), "new name")
            compare(find("Title").text, "new name")
            click("Title")
            type("zzz")
            keyClick(Qt.Key_Escape)
            compare(titles(), "new name")
        }

        function test_railByKeys() {
            for (const title of ["a", "b", "c"])
                Workspace.addCode(title, "python", title)
            open()
            click("Search snippets")
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "a, Python · 1 line")
            keyClick(Qt.Key_Down)
            shows("Source of b")
            compare(focused().Accessible.name, "b, Python · 1 line")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            compare(focused().Accessible.name, "Search snippets")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "b, Python · 1 line")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Title")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            compare(focused().Accessible.name, "b, Python · 1 line")
            keyClick(Qt.Key_End)
            shows("Source of c")
            keyClick(Qt.Key_Delete)
            shows("Delete this snippet?")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Delete this snippet?"))
            compare(titles(), "a,b,c")
            keyClick(Qt.Key_Delete)
            tryVerify(() => focused().text === "Cancel")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            compare(titles(), "a,b")
            shows("Source of a")
            tryVerify(() => focused().Accessible.name === "a, Python · 1 line")
            keyClick(Qt.Key_Return)
            compare(focused().Accessible.name, "Source of a")
        }

        function deleteOpen() {
            click("More")
            click("Delete…")
            tryVerify(() => focused().text === "Cancel")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            tryVerify(() => !find("Delete this snippet?"))
        }

        function test_deletingTheOpenOneLeavesAPlaceToGoOn() {
            Workspace.addCode("a", "python", "1")
            Workspace.addCode("b", "python", "2")
            open()
            deleteOpen()
            shows("Source of b")
            tryVerify(() => focused().Accessible.name === "Source of b")
            type("x")
            compare(saved()[0].source, "x2")
            deleteOpen()
            compare(saved().length, 0)
            shows("No snippets yet")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "New snippet")
            keyClick(Qt.Key_Space)
            shows("Source of Untitled")
            type("y")
            compare(saved()[0].source, "y")
        }

        function test_search() {
            Workspace.addCode("first", "python", "print(1)")
            Workspace.addCode("second", "sql", "select 1")
            open()
            click("Search snippets")
            type("SELECT")
            tryVerify(() => !find("first, Python · 1 line"))
            verify(find("second, SQL · 1 line"))
            type("?")
            shows("No snippet matches.")
            keyClick(Qt.Key_Escape)
            shows("first, Python · 1 line")
        }

        function test_whoComesByKeyboardLearnsHowToLeave() {
            Workspace.addCode("a", "python", "")
            open()
            click("Source of a")
            verify(!find("Ctrl Tab leaves the editor", Text))
            click("Search snippets")
            for (let stops = 0; stops < 12 && focused().Accessible.name !== "Source of a"; ++stops)
                keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Source of a")
            verify(focused().Accessible.description.includes("Ctrl Tab leaves"))
            tryVerify(() => find("Ctrl Tab leaves the editor", Text))
            keyClick(Qt.Key_Tab, Qt.ControlModifier)
            verify(focused().Accessible.name !== "Source of a")
            keyClick(Qt.Key_Backtab, Qt.ControlModifier | Qt.ShiftModifier)
            compare(saved()[0].source, "")
        }

        function test_hidingTheListLeavesNoKeyboardInIt() {
            Workspace.addCode("a", "python", "")
            open()
            click("Search snippets")
            click("Hide the list")
            tryVerify(() => !find("Search snippets"))
            compare(focused().Accessible.name, "Source of a")
            click("Show the list")
            shows("Search snippets")
            click("Search snippets")
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "a, Python · 1 line")
        }

        function test_hidingTheConsoleLeavesNoKeyboardInIt() {
            Workspace.addCode("list", "json", "[1]")
            open()
            keyClick(Qt.Key_R, Qt.ControlModifier)
            shows("Succeeded")
            mouseClick(find("Output"))
            compare(focused().Accessible.name, "Output")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Console"))
            compare(focused().Accessible.name, "Source of list")
        }

        function test_choosingTheSameAgainChangesNothing() {
            Workspace.addCode("a", "python", "")
            open()
            const before = saved()[0]
            for (let times = 0; times < 2; ++times) {
                click("Language: Python")
                tryVerify(() => find("Python", OVMenuItem)?.checked)
                verify(!find("Shell", OVMenuItem).checked)
                waitForRendering(root.view, 100)
                mouseClick(find("Python", OVMenuItem))
                tryVerify(() => !find("Python", OVMenuItem))
            }
            compare(saved()[0].language, "python")
            keyClick(Qt.Key_F2)
            keyClick(Qt.Key_Return)
            compare(saved()[0].title, before.title)
            compare(saved()[0].updatedDate, before.updatedDate)
        }

        function test_languageColoursAndCopies() {
            const id = Workspace.addCode("a", "python", "a = 1")
            open()
            click("Language: Python")
            click("Shell")
            compare(saved()[0].language, "shell")
            shows("Language: Shell")
            click("More")
            click("Duplicate")
            compare(titles(), "a,a copy")
            shows("Source of a copy")
        }

        function test_statusBar() {
            Workspace.addCode("a", "python", "long ".repeat(100))
            open()
            const editor = find("Source of a")
            const size = editor.font.pixelSize
            const height = () => editor.positionToRectangle(editor.length).y
            compare(height(), 0)
            click("Wrap long lines")
            tryVerify(() => height() > 0)
            click("Larger text")
            compare(editor.font.pixelSize, size + 1)
            click("Smaller text")
            click("Smaller text")
            compare(editor.font.pixelSize, size - 1)
            const left = editor.mapToItem(root, 0, 0).x
            click("Line numbers")
            verify(editor.mapToItem(root, 0, 0).x < left)
        }

        function test_narrowWindowTakesTurns() {
            Workspace.addCode("a", "python", "")
            Workspace.addCode("b", "python", "")
            open()
            root.view.anchors.fill = undefined
            root.view.width = 600
            root.view.height = 500
            tryVerify(() => !find("Search snippets"))
            click("Show the list")
            tryVerify(() => find("Search snippets") && !find("Source of a"))
            click("b, Python · 1 line")
            shows("Source of b")
            verify(!find("Search snippets"))

            // Escape goes back, and leaves alone what the list had covered.
            keyClick(Qt.Key_R, Qt.ControlModifier)
            shows("Console")
            click("Show the list")
            shows("Search snippets")
            keyClick(Qt.Key_Escape)
            shows("Source of b")
            compare(focused().Accessible.name, "Source of b")
            verify(find("Console"))
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Console"))
        }
    }
}
