import QtQuick
import Orvel.Notes
import Orvel.Session
import Orvel.Testing

/// The real screen, worked with real mouse and key events.
Item {
    id: root

    property NotesView view

    width: 1000
    height: 640

    Component {
        id: screen

        NotesView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "NotesView"
        scene: root.view

        function init() {
            Workspace.reset()
        }

        function open(count = 0) {
            for (let i = 1; i <= count; ++i) {
                Workspace.advanceHours(1)
                Workspace.addNote("Note " + i, i % 2 ? "odd" : "even")
            }
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
            // The grid leaves its opening.
            wait(200)
        }

        function focused() {
            return root.Window.activeFocusItem.Accessible.name
        }

        /// The visible item that assistive tools know by a name that begins like this.
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

        function card(name) {
            tryVerify(() => find(name + ", ") !== null, 2000, "shows " + name)
            return find(name + ", ")
        }

        function titles() {
            return JSON.parse(Workspace.saved()).pages.map(page => page.title).join()
        }

        function place() {
            return Orvel.ui.selection.text
        }

        function test_makesTheFirstNote() {
            open()
            verify(find("No notes yet"))
            verify(find("New note"))
            mouseClick(find("New note", find("No notes yet").parent))
            const pages = JSON.parse(Workspace.saved()).pages
            compare(pages.length, 1)
            compare(pages[0].kind, "note")
            compare(pages[0].title, "Untitled")
            compare(place(), "page/" + pages[0].id)
        }

        function test_searches() {
            open(6)
            compare(focused(), "Search notes")
            type("EVEN")
            tryVerify(() => find("Note 5, ") === null)
            verify(card("Note 4"))
            type("x")
            tryVerify(() => find("No matches") !== null)
            verify(find("No notes yet") === null)
            keyClick(Qt.Key_Escape)
            verify(card("Note 5"))
            tryVerify(() => find("No matches") === null)
            compare(focused(), "Search notes")
        }

        function test_opensByClick() {
            open(3)
            mouseClick(card("Note 2"))
            compare(place(), "page/" + JSON.parse(Workspace.saved()).pages[1].id)
        }

        function test_keysGoFromCardToCard() {
            open(7)
            keyClick(Qt.Key_Down)
            compare(focused(), "Note 7, odd, Today")
            keyClick(Qt.Key_Right)
            compare(focused(), "Note 6, even, Today")
            keyClick(Qt.Key_Down)
            compare(focused(), "Note 3, odd, Today")
            keyClick(Qt.Key_Left)
            compare(focused(), "Note 4, even, Today")
            keyClick(Qt.Key_End)
            compare(focused(), "Note 1, odd, Today")
            keyClick(Qt.Key_Right)
            compare(focused(), "Note 1, odd, Today")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Up)
            compare(focused(), "Search notes")
            keyClick(Qt.Key_Down)
            compare(focused(), "Note 7, odd, Today")
            keyClick(Qt.Key_Backtab)
            compare(focused(), "New note")
            keyClick(Qt.Key_Tab)
            compare(focused(), "Note 7, odd, Today")
            keyClick("/")
            compare(focused(), "Search notes")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_F, Qt.ControlModifier)
            compare(focused(), "Search notes")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(place(), "page/" + JSON.parse(Workspace.saved()).pages[6].id)
        }

        function test_deletes() {
            open(4)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Delete)
            compare(titles(), "Note 1,Note 2,Note 4")
            tryVerify(() => find("Note 3, ") === null)
            tryVerify(() => focused() === "Note 2, even, Today")

            const hovered = card("Note 1")
            tryCompare(hovered, "x", 2 * hovered.grid.cellWidth)
            const face = hovered.grid.mapFromItem(hovered, 0, 0)
            verify(find("Delete: Note 1", hovered) === null)
            const x = hovered.grid.columnX + 2 * (hovered.grid.cardWidth + hovered.grid.gap) + 20
            mouseMove(root.view, x, face.y + 20)
            tryVerify(() => find("Delete: Note 1", hovered) !== null)
            mouseClick(find("Delete: Note 1", hovered))
            compare(titles(), "Note 2,Note 4")
            compare(place(), "dashboard")
        }

        function test_assistiveTechnology() {
            open(1)
            Assistive.begin()
            const name = focusedCard => Assistive.describe(focusedCard)
            compare(name(card("Note 1")), "Button Note 1, odd, Today")
            Assistive.press(card("Note 1"))
            verify(place().startsWith("page/"))
        }

        function test_fourLinesOfTextStandClearOfTheDate() {
            Workspace.useInkMode()
            Workspace.addNote("Plan", "words upon ".repeat(40))
            open()
            const shown = card("Plan")
            const text = find("words upon", shown)
            const date = find("Today", shown)
            compare(text.lineCount, 4)
            const end = text.mapToItem(shown, 0, text.contentHeight).y
            const start = date.mapToItem(shown, 0, 0).y
            verify(end + 2 <= start, end + " to " + start)
        }

        function test_thousandsStayVirtual() {
            for (let i = 0; i < 3000; ++i)
                Workspace.addNote("Note", "text")
            open()
            verify(card("Note").grid.contentItem.children.length < 60)
            compare(card("Note").grid.count, 3000)
        }
    }
}
