import QtQuick
import Orvel.DesignSystem
import Orvel.Palette
import Orvel.Session
import Orvel.Testing

/// The real palette and sheet over a field that has the focus, worked with real mouse and key events.
Item {
    id: window

    width: 900
    height: 600

    Component {
        id: scene

        Item {
            property alias outside: outside
            property alias other: other
            property alias inOther: inOther

            anchors.fill: parent

            OVTextField { id: outside }

            OVSheet {
                id: other
                title: "Other"
                OVTextField { id: inOther; focus: true }
            }

            CommandPalette { anchors.fill: parent }
            ShortcutsSheet { anchors.fill: parent }
        }
    }

    ScreenTestCase {
        name: "Palette"
        scene: root

        property Item outside
        property OVSheet other
        property Item inOther

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
            mouseMove(window, 2, 598)
            const shown = createTemporaryObject(scene, window)
            outside = shown.outside
            other = shown.other
            inOther = shown.inOther
            outside.forceActiveFocus(Qt.TabFocusReason)
        }

        /// Everything seen below the item and in popups that passes the check.
        function all(check, item = window.parent) {
            let found = check(item) ? [item] : []
            for (let i = 0; i < item.children.length; ++i)
                if (item.children[i].visible)
                    found = found.concat(all(check, item.children[i]))
            return found
        }

        function field() {
            return all(item => item instanceof OVTextField && item !== outside && item !== inOther)[0] ?? null
        }

        function rows() {
            return all(item => item instanceof PaletteRow).sort((a, b) => a.y - b.y)
        }

        function row(name) {
            return rows().find(row => row.name === name)
        }

        function highlighted() {
            return rows().filter(row => row.highlighted).map(row => row.name).join()
        }

        function text(text) {
            return all(item => item.text === text)[0]
        }

        function open() {
            Orvel.ui.isSearchPresented = true
            tryVerify(() => field()?.activeFocus ?? false)
        }

        function test_opensFocusedAndGivesTheFocusBack() {
            open()
            compare(field().placeholderText, "Search pages, tasks, projects and databases…")
            verify(text("QUICK LINKS"))
            type("x")
            keyClick(Qt.Key_Escape)
            compare(Orvel.ui.isSearchPresented, false)
            tryVerify(() => outside.activeFocus)
            compare(outside.text, "")
            open()
            compare(field().text, "")
            verify(row("Dashboard"))
            mouseClick(window, 5, 5)
            compare(Orvel.ui.isSearchPresented, false)
            tryVerify(() => outside.activeFocus)
        }

        function test_liesOverAnotherSheet() {
            other.open()
            tryCompare(other, "opened", true)
            open()
            type("nothing")
            tryVerify(() => text("No results"))
            verify(text("Nothing matches “nothing”."))
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.isSearchPresented, true)
            keyClick(Qt.Key_Escape)
            tryVerify(() => inOther.activeFocus)
            verify(other.opened)
        }

        function test_keysMoveTheHighlightAndReturnOpensIt() {
            Workspace.addTask("plan the week")
            const id = Workspace.addPage("Plan <A> & b")
            open()
            type("plan")
            compare(highlighted(), "Plan <A> & b")
            verify(text("PAGE"))
            verify(text("TASK"))
            compare(row("plan the week").title, "<b>plan</b> the week")
            keyClick(Qt.Key_Down)
            compare(highlighted(), "plan the week")
            compare(field().Accessible.description, "plan the week, To do")
            keyClick(Qt.Key_Down)
            compare(highlighted(), "Plan <A> & b")
            keyClick(Qt.Key_Home)
            type("x")
            compare(field().text, "xplan")
            keyClick(Qt.Key_Backspace)
            keyClick(Qt.Key_End, Qt.ControlModifier)
            compare(highlighted(), "plan the week")
            keyClick(Qt.Key_Tab)
            verify(field().activeFocus)
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text, "page/" + id.toUpperCase())
            compare(Orvel.ui.isSearchPresented, false)
        }

        function test_titlesFromRightToLeftStandBesideTheirSubtitle() {
            Workspace.addTask("كتابة الرسالة")
            open()
            Composer.commit("كت")
            const found = row("كتابة الرسالة")
            verify(found)
            const title = all(item => item.text === found.title, found)[0]
            const subtitle = all(item => item.text === "To do", found)[0]
            verify(title.x + title.contentWidth <= subtitle.x)
            compare(title.effectiveHorizontalAlignment, Text.AlignLeft)
        }

        function test_longListsKeepTheHighlightInSight() {
            Workspace.addTasks(60)
            open()
            type("task")
            const list = rows()[0].ListView.view
            for (const key of [Qt.Key_PageDown, Qt.Key_PageDown, Qt.Key_Up, Qt.Key_PageUp, Qt.Key_Up,
                               Qt.Key_PageDown, Qt.Key_Down]) {
                keyClick(key)
                const shown = rows().find(row => row.highlighted)
                verify(shown.y >= list.contentY && shown.y + shown.height <= list.contentY + list.height)
            }
            keyClick(Qt.Key_Home, Qt.ControlModifier)
            compare(highlighted(), "Task 0")
            verify(list.contentY <= rows()[0].y)
            keyClick(Qt.Key_Up)
            compare(highlighted(), "Task 39")
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text, "tasks")
        }

        function test_onlyAMovingPointerHighlights() {
            open()
            waitForRendering(row("Focus"))
            const place = row("Focus").mapToItem(window, 200, 20)
            keyClick(Qt.Key_Escape)
            tryVerify(() => field() === null)
            mouseMove(window, place.x, place.y)
            open()
            waitForRendering(row("Focus"))
            compare(highlighted(), rows()[0].name)
            keyClick(Qt.Key_Down)
            compare(highlighted(), rows()[1].name)
            mouseMove(window, place.x + 3, place.y)
            mouseMove(window, place.x + 6, place.y)
            tryVerify(() => highlighted() === "Focus")
            keyClick(Qt.Key_Down)
            compare(highlighted(), rows()[rows().findIndex(row => row.name === "Focus") + 1].name)
            mouseClick(window, place.x + 6, place.y)
            compare(Orvel.ui.selection.text, "focus")
            compare(Orvel.ui.isSearchPresented, false)
        }

        function test_shortcutsAreShownAndFound() {
            Orvel.ui.isShortcutsPresented = true
            tryVerify(() => field()?.activeFocus ?? false)
            const caps = () => all(item => item instanceof OVKeyCap).map(cap => cap.text)
            const groups = () => all(item => item instanceof ShortcutsGroup).map(group => group.shortcuts.title).sort()
            compare(caps().filter(cap => cap === "Ctrl").length, 22)
            waitForRendering(field())
            const top = field().mapToItem(window, 0, 0).y
            type("new")
            compare(groups(), ["Create"])
            compare(caps().join(" "), "Ctrl N Ctrl Shift N Ctrl Shift K")
            compare(field().mapToItem(window, 0, 0).y, top)
            type("x")
            verify(text("No shortcuts match"))
            verify(text("Try a different search."))
            keyClick(Qt.Key_Escape)
            compare(groups(), ["Create", "General", "Navigate", "View"])
            compare(Orvel.ui.isShortcutsPresented, true)
            const scrolled = all(item => item instanceof Flickable && item.contentHeight > item.height + 1)[0]
            if (scrolled) {
                keyClick(Qt.Key_Down)
                verify(scrolled.contentY > 0)
            }
            keyClick(Qt.Key_Escape)
            compare(Orvel.ui.isShortcutsPresented, false)
            tryVerify(() => outside.activeFocus)
        }
    }
}
