import QtQuick
import QtTest
import Orvel.Pages
import Orvel.Session
import Orvel.Testing

/// Misspelt words in a page: how they are marked, and what keys and the mouse do about them.
Item {
    id: root

    property PageEditorView view
    readonly property BlockList list: view?.list ?? null

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
        name: "PageSpelling"
        scene: root.view

        function initTestCase() {
            Spelling.setFolders([Qt.resolvedUrl("dictionaries").toString().replace("file://", "")])
            // The machine's language chooses others.
            for (let i = 0; i < Spelling.languages.length; ++i) {
                if (Spelling.chosenLanguages[i] !== Spelling.languages[i].includes("English"))
                    Spelling.toggleLanguage(i)
            }
            Spelling.setSuggestionWait(30000)
        }

        function init() {
            Spelling.isEnabled = true
        }

        function open(text) {
            Workspace.reset()
            const id = Workspace.addPageOf([{ "text": text }, { "text": "befor", "type": "code" }])
            Orvel.ui.selectPage(id)
            root.view = createTemporaryObject(screen, root, { pageID: id })
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function field() {
            return root.list.itemAtIndex(0).part.input
        }

        /// The words that are underlined.
        function marked() {
            const spelling = field().spelling
            const words = []
            for (let at = 0; at < field().length; at = Math.max(at, spelling.wordEnd(at)) + 1)
                if (spelling.wordBegin(at) >= 0)
                    words.push(spelling.wordAt(at))
            compare(spelling.visible, words.length > 0)
            return words
        }

        function storedText() {
            return saved().pages[0].content[0].text
        }

        function test_marksAndCorrectsByKey() {
            open("the harbour wakes befor the twon does")
            tryVerify(() => marked().join() === "befor,twon")
            root.list.focusBlock(0, 20)
            keyClick(Qt.Key_Menu)
            // The first entry is what was most likely meant.
            tryVerify(() => !(focused() instanceof TextEdit))
            keyClick(Qt.Key_Return)
            tryCompare(field(), "text", "the harbour wakes before the twon does")
            compare(storedText(), "the harbour wakes before the twon does")
            tryVerify(() => marked().join() === "twon")
            tryCompare(field(), "activeFocus", true)
            compare(field().cursorPosition, 24)
            Orvel.undo.undo()
            compare(storedText(), "the harbour wakes befor the twon does")
        }

        function test_waitsForTheWordBeingWritten() {
            // What is known of the word by now is not shown while it is written.
            open("befor the ")
            tryVerify(() => marked().join() === "befor")
            root.list.focusBlock(0, 10)
            type("befor")
            tryCompare(field(), "text", "befor the befor")
            waitForRendering(root.view)
            compare(marked(), ["befor"])
            type(" sea")
            tryVerify(() => marked().join() === "befor,befor")
        }

        function test_keepsIgnoresAndSwitchesOff() {
            open("twonn is befour befour")
            tryVerify(() => marked().length === 3)
            Spelling.ignore("befour")
            tryVerify(() => marked().join() === "twonn")
            Spelling.add("twonn")
            tryVerify(() => marked().length === 0)
            compare(field().spelling.ownWordAt(2), "twonn")
            Spelling.remove("twonn")
            tryVerify(() => marked().join() === "twonn")
            Spelling.isEnabled = false
            tryVerify(() => marked().length === 0)
        }

        function test_offersInTheContextMenu() {
            open("befor the sea")
            tryVerify(() => marked().length === 1)
            const place = field().positionToRectangle(2)
            mouseClick(field(), place.x + 1, place.y + place.height / 2, Qt.RightButton)
            tryVerify(() => !(focused() instanceof TextEdit))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            tryVerify(() => storedText() === "before the sea")
        }
    }
}
