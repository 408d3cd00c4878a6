import QtQuick
import QtTest
import Orvel.Reader
import Orvel.Session
import Orvel.Testing

/// The real screen, worked with real mouse and key events.
Item {
    id: root

    property ReaderView view

    width: 1000
    height: 640

    Component {
        id: screen

        ReaderView {
            anchors.fill: parent
            catalogue: "http://127.0.0.1:1"
            focus: true
        }
    }

    TestCase {
        id: test

        name: "ReaderView"
        when: windowShown

        function init() {
            Workspace.reset()
            root.width = 1000
        }

        /// A book of numbered paragraphs of a few lines each.
        function addBook(title, count) {
            const texts = ["CHAPTER I"]
            for (let i = 1; i < count; ++i)
                texts.push("Paragraph " + i + ". " + "The harbour wakes before the town does. ".repeat(1 + i % 9))
            return Workspace.addBook(title, "Austen, Jane", texts.join("\n\n"))
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function find(name, from = root.view) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                if (!child.visible)
                    continue
                const found = child.Accessible.name.startsWith(name) ? child : find(name, child)
                if (found)
                    return found
            }
            return null
        }

        function shown(name) {
            tryVerify(() => find(name) !== null, 5000, "shows " + name)
            return find(name)
        }

        function textList() {
            tryVerify(() => find("CHAPTER I") ?? find("Paragraph"))
            return (find("CHAPTER I") ?? find("Paragraph")).ListView.view
        }

        function topName(list) {
            const item = list.itemAt(list.width / 2, list.contentY + 1)
            return item ? item.Accessible.name.split(".")[0] : ""
        }

        function saved() {
            wait(350)
            return JSON.parse(Workspace.saved())
        }

        function test_readsByKeys() {
            addBook("Emma", 3000)
            open()
            const list = textList()
            tryVerify(() => list.activeFocus)
            compare(topName(list), "")
            const pageHeight = list.height
            const before = list.contentY
            keyClick(Qt.Key_Space)
            verify(list.contentY > before + pageHeight * 0.8)
            verify(list.contentY < before + pageHeight)
            keyClick(Qt.Key_Space, Qt.ShiftModifier)
            compare(Math.round(list.contentY), Math.round(before))
            keyClick(Qt.Key_Down)
            verify(list.contentY > before && list.contentY < before + 100)
            keyClick(Qt.Key_End)
            verify(find("Paragraph 2999"))
            keyClick(Qt.Key_Home)
            verify(find("CHAPTER I"))
            // Only what is seen is made.
            verify(list.contentItem.children.length < 80)
        }

        function test_findsThePlaceAgain() {
            addBook("Emma", 400)
            open()
            let list = textList()
            for (let i = 0; i < 12; ++i)
                keyClick(Qt.Key_Space)
            const place = topName(list)
            verify(place.startsWith("Paragraph"))
            compare(saved().books[0].lastLocation, Number(place.split(" ")[1]))

            mouseClick(find("Larger text"))
            mouseClick(find("Larger text"))
            waitForRendering(root.view)
            tryVerify(() => topName(list) === place)
            compare(saved().settings.readerFontScale, 1.16)
            mouseClick(find("Serif type"))
            waitForRendering(root.view)
            tryVerify(() => topName(list) === place)
            root.width = 700
            waitForRendering(root.view)
            tryVerify(() => topName(list) === place)

            root.view.destroy()
            root.width = 1000
            open()
            shown(place)
            list = shown(place).ListView.view
            compare(topName(list), place)
        }

        function test_searchesTheBook() {
            addBook("Emma", 2000)
            open()
            const list = textList()
            keyClick(Qt.Key_F, Qt.ControlModifier)
            for (const letter of "paragraph 1500")
                keyClick(letter)
            shown("1 of 1")
            verify(find("Paragraph 1500."))
            keyClick(Qt.Key_Return)
            verify(find("Paragraph 1500."))
            keyClick(Qt.Key_Escape)
            verify(find("1 of 1") === null)
            tryVerify(() => list.activeFocus)
            verify(find("Paragraph 1500."))
        }

        function test_selectsAndCopies() {
            addBook("Emma", 30)
            open()
            const list = textList()
            const first = shown("Paragraph 1.")
            const third = shown("Paragraph 3.")
            const x = list.width / 2 - 200
            const y = item => item.mapToItem(list, 0, 12).y
            mousePress(list, x, y(first))
            mouseMove(list, x + 30, y(third))
            mouseRelease(list, x + 30, y(third))
            keyClick(Qt.Key_C, Qt.ControlModifier)
            const copied = Workspace.clipboard()
            verify(copied.includes("Paragraph 2. The harbour"))
            compare(copied.split("\n\n").length, 3)
            keyClick(Qt.Key_Escape)
            keyClick(Qt.Key_Down, Qt.ShiftModifier)
            keyClick(Qt.Key_Down, Qt.ShiftModifier)
            keyClick(Qt.Key_C, Qt.ControlModifier)
            compare(Workspace.clipboard().split("\n\n").length, 2)
        }

        function test_worksTheLibraryByKeys() {
            addBook("Emma", 3)
            addBook("Persuasion", 3)
            open()
            tryVerify(() => textList().activeFocus)
            keyClick(Qt.Key_Escape)
            shown("No book is open")
            tryVerify(() => shown("Emma, ").activeFocus)
            keyClick(Qt.Key_Down)
            verify(shown("Persuasion, ").activeFocus)
            keyClick(Qt.Key_Return)
            tryVerify(() => textList().activeFocus)
            keyClick(Qt.Key_Escape)
            tryVerify(() => shown("Persuasion, ").activeFocus)
            keyClick(Qt.Key_Delete)
            tryVerify(() => find("Persuasion, ") === null)
            tryVerify(() => shown("Emma, ").activeFocus)
            compare(saved().books.length, 1)
            Orvel.undo.undo()
            shown("Persuasion, ")
            compare(saved().books.length, 2)
        }

        function test_emptyLibraryLeadsToTheSearch() {
            open()
            shown("Your library is empty")
            shown("Books you add appear here.")
            mouseClick(shown("Discover books"))
            shown("Search by title or author to begin.")
            tryVerify(() => shown("Search books").activeFocus)
            keyClick("e")
            shown("Offline")
            keyClick(Qt.Key_Escape)
            shown("Search by title or author to begin.")
        }

        function test_narrowWindowsShowOneThing() {
            root.width = 560
            addBook("Emma", 30)
            open()
            textList()
            verify(find("Emma, ") === null)
            mouseClick(shown("Library"))
            shown("Emma, ")
            verify(find("CHAPTER I") === null)
            mouseClick(shown("Emma, "))
            textList()
        }

        function test_aBookWithoutItsText() {
            Workspace.addBook("Emma", "Austen, Jane", "")
            open()
            shown("This book's text isn't on disk yet.")
            // There is no address to ask, which is told with the name of the book.
            mouseClick(shown("Download it"))
            tryVerify(() => find("“Emma” was not downloaded", root.Window.contentItem))
            keyClick(Qt.Key_Return)
            tryVerify(() => BookDownloads.errorMessage === "")
        }

        function test_assistiveTechnologyReadsParagraphs() {
            addBook("Emma", 4)
            open()
            Assistive.begin()
            compare(Assistive.describe(shown("CHAPTER I")), "Heading CHAPTER I")
            verify(Assistive.describe(shown("Paragraph 2.")).startsWith("Paragraph Paragraph 2. The harbour"))
        }
    }
}
