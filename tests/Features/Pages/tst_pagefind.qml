import QtQuick
import QtTest
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Session
import Orvel.Testing

/// The search within a page, by real keys.
Item {
    id: root

    property PageEditorView view
    readonly property BlockList list: view?.list ?? null
    readonly property TextFinder finder: view?.editor.finder ?? null

    height: 700
    width: 1000

    Component {
        id: screen

        PageEditorView {
            anchors.fill: parent
            focus: true
        }
    }

    TestCase {
        name: "PageFind"
        when: windowShown

        function open(blocks) {
            Workspace.reset()
            const id = Workspace.addPageOf(blocks)
            Orvel.ui.selectPage(id)
            root.view = createTemporaryObject(screen, root, { pageID: id })
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function typeText(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function texts() {
            return JSON.parse(Workspace.saved()).pages[0].content.map(block => block.text)
        }

        function focusItem() {
            return root.Window.activeFocusItem
        }

        function lines(count) {
            return Array.from({ length: count }, (_, i) => ({ "text": "Line " + i + (i % 40 === 39 ? " oar" : "") }))
        }

        /// Whether the line of the current match lies within the list.
        function isInSight(row) {
            const item = root.list.itemAtIndex(row)
            const y = item ? item.y - root.list.contentY : -1
            return y >= 0 && y + item.height <= root.list.height
        }

        function test_goesFromMatchToMatch() {
            open(lines(200))
            keyClick(Qt.Key_F, Qt.ControlModifier)
            verify(root.finder.isOpen)
            typeText("oar")
            compare(root.finder.countText, "1 of 5")
            tryVerify(() => isInSight(39))
            const marks = () => Array.from(root.list.itemAtIndex(39).part.input.children).filter(child => child instanceof OVTextMarks && child.visible)
            tryVerify(() => marks().length === 1)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_G, Qt.ControlModifier)
            tryVerify(() => isInSight(119))
            keyClick(Qt.Key_G, Qt.ControlModifier | Qt.ShiftModifier)
            tryVerify(() => isInSight(79))
            verify(!root.list.activeFocus)

            // Escape leads on from the match itself.
            keyClick(Qt.Key_Escape)
            verify(!root.finder.isOpen)
            tryCompare(focusItem(), "selectedText", "oar")
            keyClick("x")
            compare(texts()[79], "Line 79 x")

            keyClick(Qt.Key_G, Qt.ControlModifier)
            verify(root.finder.isOpen)
            compare(root.finder.countText, "2 of 4")
            tryVerify(() => isInSight(119))
        }

        function test_looksForWhatIsSelected() {
            open([{ "text": "oar and sail" }, { "text": "sail" }])
            root.list.focusBlock(0, 0)
            root.list.currentItem.part.input.select(8, 12)
            keyClick(Qt.Key_F, Qt.ControlModifier)
            compare(root.finder.query, "sail")
            compare(root.finder.countText, "1 of 2")
            keyClick("o")
            compare(root.finder.query, "o")
        }

        function test_replacesByKey() {
            open([{ "text": "oar, oar" }, { "text": "let oar = 1", "type": "code" }])
            keyClick(Qt.Key_H, Qt.ControlModifier)
            typeText("oar")
            keyClick(Qt.Key_Tab)
            while (!(focusItem() instanceof OVTextField) || focusItem().text === "oar")
                keyClick(Qt.Key_Tab)
            typeText("net")
            keyClick(Qt.Key_Return)
            compare(texts(), ["net, oar", "let oar = 1"])
            compare(root.finder.countText, "1 of 2")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Space)
            compare(texts(), ["net, net", "let net = 1"])
            Orvel.undo.undo()
            compare(texts(), ["net, oar", "let oar = 1"])
        }

        function test_worksInZenMode() {
            open(lines(80))
            root.view.editor.isZen = true
            tryVerify(() => root.list.activeFocus)
            keyClick(Qt.Key_F, Qt.ControlModifier)
            typeText("79")
            tryVerify(() => isInSight(79))
            keyClick(Qt.Key_Escape)
            tryCompare(focusItem(), "selectedText", "79")
            verify(root.view.editor.isZen)
        }
    }
}
