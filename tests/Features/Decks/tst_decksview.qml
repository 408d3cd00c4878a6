import QtQuick
import Orvel.Decks
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property DecksView view

    width: 1000
    height: 700

    Component {
        id: screen

        DecksView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "DecksView"
        scene: root.Window.window.contentItem

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function openDeck(slides) {
            Workspace.addDeck("Plan", slides)
            open()
        }

        function deck() {
            return JSON.parse(Workspace.saved()).decks[0]
        }

        function titles() {
            return deck().slides.map(slide => slide.title).join()
        }

        function canvas() {
            return find("Slide").canvas
        }

        /// Clicks a place of the slide, told on the reference canvas.
        function clickSlide(x, y) {
            const unit = canvas().width / 1280
            mouseClick(canvas(), x * unit, y * unit)
        }

        function test_typesIntoTheSlide() {
            openDeck([{ kind: "title", title: "Calm", subtitle: "Now" }])
            clickSlide(900, 240)
            compare(canvas().field, "title")
            type(" work")
            compare(deck().slides[0].title, "Calm work")
            // Beside the text, the nearest place.
            clickSlide(90, 240)
            type("A")
            compare(deck().slides[0].title, "ACalm work")
            keyClick(Qt.Key_Tab)
            compare(canvas().field, "subtitle")
            type("!")
            compare(deck().slides[0].subtitle, "Now!")
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Backtab)
            compare(canvas().field, "kicker")
            type("Eyebrow")
            compare(deck().slides[0].kicker, "Eyebrow")
            for (let i = 0; i < 7; ++i)
                keyClick(Qt.Key_Backspace)
            compare(deck().slides[0].kicker, "")
            compare(canvas().field, "kicker")
            keyClick(Qt.Key_Return)
            compare(canvas().field, "title")
            keyClick(Qt.Key_Escape)
            compare(canvas().field, "")
            verify(find("Slides").activeFocus)
        }

        function test_linesOfAListAreOneText() {
            openDeck([{ kind: "bullets", title: "Heading", body: "one\ntwo" }])
            clickSlide(1000, 330)
            compare(canvas().field, "body")
            keyClick(Qt.Key_Return)
            type("three")
            compare(deck().slides[0].body, "one\ntwo\nthree")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Backspace)
            compare(deck().slides[0].body, "one\ntwothree")
            keyClick(Qt.Key_Up)
            type("1")
            compare(deck().slides[0].body, "one1\ntwothree")
            keyClick(Qt.Key_Up)
            compare(canvas().field, "title")
            keyClick(Qt.Key_Down)
            compare(canvas().field, "body")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Left)
            compare(canvas().field, "title")
            keyClick(Qt.Key_Right)
            compare(canvas().field, "body")
            keyClick(Qt.Key_Down, Qt.ShiftModifier)
            keyClick(Qt.Key_Delete)
            compare(deck().slides[0].body, "twothree")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            tryVerify(() => deck().slides[0].body === "one1\ntwothree")
            compare(canvas().text, "one1\ntwothree")
        }

        function test_selectsWithTheMouse() {
            openDeck([{ kind: "bullets", title: "Heading", body: "one two three" }])
            const unit = canvas().width / 1280
            const rect = canvas().rectOf("body")
            const y = rect.y + 20 * unit
            mouseDoubleClickSequence(canvas(), rect.x + 100 * unit, y)
            const input = root.Window.activeFocusItem
            verify(["one", "two"].includes(input.selectedText))
            mousePress(canvas(), rect.x + 10, y)
            mouseMove(canvas(), rect.x + rect.width - 1, y)
            mouseRelease(canvas(), rect.x + rect.width - 1, y)
            verify(input.selectedText.endsWith("two three"))
        }

        function test_composesWhereTheCaretIs() {
            openDeck([{ kind: "title", title: "Tea" }])
            clickSlide(900, 240)
            Composer.compose("cha")
            compare(canvas().preedit, "cha")
            compare(deck().slides[0].title, "Tea")
            Composer.commit("茶")
            compare(deck().slides[0].title, "Tea茶")
        }

        function test_titlesKeepTheirCase() {
            openDeck([{ kind: "title", title: "" }])
            click("Theme")
            click("Noir")
            tryVerify(() => deck().theme.id === "noir")
            clickSlide(300, 260)
            type("Calm")
            compare(deck().slides[0].title, "Calm")
            compare(find("Slide 1: Calm").number, 1)
        }

        function test_filmstripByKeys() {
            openDeck([{ title: "a" }, { title: "b" }, { title: "c" }])
            const strip = find("Slides")
            strip.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            compare(root.view.editor.selectedIndex, 1)
            keyClick(Qt.Key_Right, Qt.ControlModifier)
            compare(titles(), "a,c,b")
            keyClick(Qt.Key_D, Qt.ControlModifier)
            compare(titles(), "a,c,b,b")
            keyClick(Qt.Key_Delete)
            compare(titles(), "a,c,b")
            compare(root.view.editor.selectedIndex, 2)
            verify(strip.activeFocus)
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Return)
            compare(canvas().field, "kicker")
            keyClick(Qt.Key_PageDown)
            compare(root.view.editor.selectedIndex, 1)
            keyClick(Qt.Key_M, Qt.ControlModifier)
            compare(deck().slides.length, 4)
            compare(deck().slides[3].kind, "bullets")
            type("New")
            compare(titles(), "a,c,b,New")
        }

        function test_filmstripByDragging() {
            openDeck([{ title: "a" }, { title: "b" }, { title: "c" }])
            const first = find("Slide 1: a")
            mousePress(first, 20, 20)
            for (let x = 20; x <= 20 + first.stride * 2; x += 10)
                mouseMove(first, x, 20)
            compare(first.offset, 2)
            mouseRelease(first, 20 + first.stride * 2, 20)
            compare(titles(), "b,c,a")
        }

        function test_theLastSlideLeavesAnEmptyDeck() {
            openDeck([{ title: "a" }])
            click("Delete slide")
            tryVerify(() => find("This deck has no slides"))
            verify(find("Add a slide to start building."))
            verify(!find("Present").enabled)
            find("New slide").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Down)
            click("Statement")
            tryVerify(() => deck().slides.length === 1)
            compare(canvas().field, "title")
        }

        function test_inspectorWritesWhatTheCanvasShows() {
            openDeck([{ kind: "stats", title: "Year" }])
            clickSlide(300, 380)
            tryVerify(() => find("Write one card per line as `value | label`."))
            type("72 | Rate")
            compare(deck().slides[0].body, "72 | Rate")
            click("Author")
            type("Ada")
            compare(deck().author, "Ada")
            click("Page numbers")
            compare(deck().showNumbers, false)
            click("Toggle inspector")
            verify(!find("Author"))
        }

        function test_marksWhatDoesNotFit() {
            openDeck([{ kind: "bullets", title: "Heading", body: "point\n".repeat(9) + "last" }])
            tryVerify(() => find("This text doesn't fit the slide."))
            compare(canvas().overflows.length, 1)
        }

        function test_deletesADeckAfterAsking() {
            Workspace.addDeck("Plan", [])
            openDeck([])
            click("More")
            click("Delete…")
            tryVerify(() => find("Delete this deck?"))
            keyClick(Qt.Key_Return)
            compare(JSON.parse(Workspace.saved()).decks.length, 2)
            click("More")
            click("Delete…")
            click("Delete")
            compare(JSON.parse(Workspace.saved()).decks.length, 1)
        }

        function test_newDecksAreNamedAtOnce() {
            open()
            verify(find("Shape a talk, then export it to PowerPoint, PDF or Markdown."))
            click("New deck")
            type("Talk")
            keyClick(Qt.Key_Return)
            compare(deck().title, "Talk")
            keyClick(Qt.Key_P, Qt.ControlModifier | Qt.ShiftModifier)
            compare(Workspace.presentedDeck(), "Talk")
        }
    }
}
