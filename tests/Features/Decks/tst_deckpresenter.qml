import QtQuick
import QtTest
import Orvel.Decks
import Orvel.Testing

/// A talk given with real keys.
Item {
    id: root

    property DeckPresenterLayer talk
    property Item behind

    width: 1000
    height: 640

    Component {
        id: screen

        DeckPresenterLayer { anchors.fill: parent }
    }

    TextInput { id: field }

    TestCase {
        id: test

        name: "DeckPresenter"
        when: windowShown

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
            field.forceActiveFocus()
            root.talk = createTemporaryObject(screen, root)
        }

        function present(slides) {
            Workspace.present(Workspace.addDeck("Talk", slides))
            tryVerify(() => root.talk.view?.activeFocus)
        }

        function find(name, from = root.talk.view) {
            if (from?.Accessible.name === name)
                return from
            for (let i = 0; i < (from?.children.length ?? 0); ++i) {
                const child = from.children[i]
                if (!child.visible)
                    continue
                const found = find(name, child)
                if (found)
                    return found
            }
            return null
        }

        function index() {
            return root.talk.presenter.index
        }

        function test_keysGoThroughTheSlides() {
            present([{ title: "a" }, { title: "b" }, { title: "c" }])
            for (const key of [Qt.Key_Right, Qt.Key_Down, Qt.Key_Space, Qt.Key_PageDown])
                keyClick(key)
            compare(index(), 2)
            for (const key of [Qt.Key_Left, Qt.Key_Up, Qt.Key_PageUp])
                keyClick(key)
            compare(index(), 0)
            keyClick(Qt.Key_End)
            compare(index(), 2)
            mouseClick(root, 20, 200)
            compare(index(), 1)
            mouseClick(root, root.width - 20, 200)
            compare(index(), 2)
            keyClick(Qt.Key_Escape)
            compare(Workspace.presentedDeck(), "")
            tryVerify(() => !root.talk.view)
            tryVerify(() => field.activeFocus)
        }

        function test_blanksAndKeepsGoing() {
            present([{ title: "a" }, { title: "b" }])
            verify(find("Slide 1"))
            keyClick(Qt.Key_B)
            verify(!find("Slide 1"))
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_T)
            verify(!find("Slide 2"))
            keyClick(Qt.Key_Period)
            verify(find("Slide 2"))
        }

        function test_showsTheNotes() {
            present([{ title: "a", notes: " Breathe \n" }, { title: "b" }])
            const before = find("Slide 1").height
            keyClick(Qt.Key_N)
            verify(find("Breathe"))
            verify(find("Slide 1").height < before)
            keyClick(Qt.Key_Right)
            verify(find("No notes on this slide."))
            keyClick(Qt.Key_N)
            verify(!find("No notes on this slide."))
        }

        function test_keepsTheHeightOfTheNotes() {
            const slides = [{ title: "a", notes: "Breathe" }]
            present(slides)
            keyClick(Qt.Key_N)
            const before = find("Slide 1").height
            const edge = find("Notes").parent.mapToItem(root, 0, 0).y + 6
            mouseDrag(root, 500, edge, 0, -60)
            verify(find("Slide 1").height < before)
            const dragged = root.talk.presenter.notesHeight
            verify(dragged > 150)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !root.talk.view)
            const later = createTemporaryObject(screen, root)
            compare(later.presenter.notesHeight, dragged)
            root.talk.presenter.notesHeight = 130
            PresenterStyle.showingNotes = false
        }

        function test_hidesThePointerThatRests() {
            present([{ title: "a" }])
            const view = find("Presentation of Talk")
            mouseMove(view, 500, 300)
            compare(view.pointerShape, Qt.ArrowCursor)
            tryCompare(view, "pointerShape", Qt.BlankCursor, 5000)
            mouseMove(view, 520, 300)
            compare(view.pointerShape, Qt.ArrowCursor)
        }

        function test_anEmptyDeckShowsTheBarsAlone() {
            present([])
            verify(find("This deck has no slides"))
            keyClick(Qt.Key_Right)
            verify(find("Exit presentation (Esc)"))
            mouseClick(find("Exit presentation (Esc)"))
            compare(Workspace.presentedDeck(), "")
        }

        function test_endsWhenItsDeckIsGone() {
            const id = Workspace.addDeck("Talk", [{ title: "a" }, { title: "b" }])
            Workspace.present(id)
            keyClick(Qt.Key_Right)
            Workspace.deleteDeck(id)
            wait(0)
            tryVerify(() => !root.talk.view)
        }
    }
}
