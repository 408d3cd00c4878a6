import QtQuick
import QtTest
import Orvel.App
import Orvel.DesignSystem
import Orvel.Pages
import Orvel.Relax
import Orvel.Session
import Orvel.Shell
import Orvel.Testing
import Orvel.Today

Item {
    id: window

    width: 1240
    height: 820

    Component {
        id: workspaceView

        WorkspaceView {
            anchors.fill: parent
        }
    }

    TestCase {
        name: "Shell"
        when: windowShown

        property Item view: null

        function init() {
            Workspace.reset()
        }

        function cleanup() {
            view.destroy()
            view = null
        }

        function start() {
            view = workspaceView.createObject(window)
            waitForRendering(view)
        }

        /// Everything below the item and in popups that passes the check and is seen.
        function all(item, check) {
            let found = check(item) ? [item] : []
            for (let i = 0; i < item.children.length; ++i) {
                const child = item.children[i]
                if (child.visible && child.opacity > 0)
                    found = found.concat(all(child, check))
            }
            return found
        }

        function named(text, type) {
            const root = window.parent
            return all(root, item => (item.text === text || item.title === text)
                                     && (type === undefined || item instanceof type))
        }

        function one(text, type) {
            let found = []
            tryVerify(() => { found = named(text, type); return found.length > 0 }, 2000, "There is " + text)
            return found[0]
        }

        function gone(text, type) {
            tryVerify(() => named(text, type).length === 0, 2000, text + " is gone")
        }

        function press(text, type) {
            // Clicks on a screen that is still fading are not taken.
            tryCompare(all(view, item => item instanceof DetailHost)[0], "busy", false)
            const item = one(text, type)
            if (item instanceof OVMenuItem)
                tryCompare(item.menu, "opened", true)
            if (item instanceof SidebarRow)
                item.parent.ListView.view?.positionViewAtIndex(item.parent.index, ListView.Contain)
            mouseClick(item)
        }

        function typeText(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function pages() {
            return JSON.parse(Workspace.saved()).pages.map(page => page.title)
        }

        function test_opensAPageAndComesBackWhenItIsDeleted() {
            Workspace.hideModule("reader")
            const id = Workspace.addPage("Plan")
            start()
            press("Plan", SidebarRow)
            compare(Orvel.ui.selection.text, "page/" + id.toUpperCase())
            one("Plan", PageEditorView)
            keyClick(Qt.Key_Delete)
            compare(Orvel.ui.selection.text, "dashboard")
            one("Dashboard", OVPageHeader)
            gone("Plan")
            compare(pages(), [])
        }

        function test_theKeyboardGoesAlong() {
            const plan = Workspace.addPage("Plan")
            start()
            view.forceActiveFocus()
            Orvel.ui.select("tasks")
            const host = all(view, item => item instanceof DetailHost)[0]
            tryVerify(() => host.activeFocus)

            // A page that has its name takes no words until the user goes to where they belong.
            Orvel.ui.selectPage(plan)
            one("Plan", PageEditorView)
            tryVerify(() => host.activeFocus && !host.busy)
            typeText("x")
            keyClick(Qt.Key_Down)
            typeText("y")
            const page = JSON.parse(Workspace.saved()).pages[0]
            compare([page.title, page.content[0].text], ["Plan", "y"])
            Orvel.ui.select("tasks")
            one("Tasks", OVPageHeader)

            // Who walks through the sidebar stays there, but to a page that waits for its name.
            press("Plan", SidebarRow)
            one("Plan", PageEditorView)
            verify(!host.activeFocus)
            keyClick(Qt.Key_Down)
            verify(all(view, item => item instanceof SidebarRow && item.visualFocus).length === 1)
            press("New page")
            tryVerify(() => host.activeFocus)
            one("Untitled", PageEditorView)
            typeText("trip")
            compare(pages(), ["Plan", "trip"])
        }

        function test_goesBackToWhereAPageWasLeft() {
            const blocks = []
            for (let i = 0; i < 80; ++i)
                blocks.push({ "text": "Line " + i })
            const id = Workspace.addPageOf(blocks)
            start()
            const host = all(view, item => item instanceof DetailHost)[0]
            const shown = () => host.currentItem as PageEditorView
            Orvel.ui.selectPage(id)
            tryVerify(() => shown() && !host.busy)
            shown().list.focusBlock(50, 3)
            shown().list.currentItem.part.input.select(1, 3)
            waitForRendering(view)
            const topRow = () => shown().list.indexAt(300, shown().list.contentY + 1)
            const top = topRow()
            verify(top > 20)

            Orvel.ui.select("tasks")
            one("Tasks", OVPageHeader)
            tryCompare(host, "busy", false)
            Workspace.insertBlockFirst(id, "New")
            Orvel.visits.back()
            tryVerify(() => shown()?.list.currentItem?.part.input.activeFocus === true)
            const input = shown().list.currentItem.part.input
            compare([input.text, input.selectedText], ["Line 50", "in"])
            tryVerify(() => topRow() === top + 1)

            // A visit by another way begins at the top.
            tryCompare(host, "busy", false)
            Orvel.ui.select("tasks")
            tryVerify(() => !shown() && !host.busy)
            Orvel.ui.selectPage(id)
            tryVerify(() => shown() !== null)
            verify(topRow() <= 0, "At the top, not at row " + topRow())

            // Close to the top, where what stands above the rows takes part.
            tryVerify(() => !host.busy)
            shown().list.contentY = shown().list.originY + 150
            const place = shown().list.contentY - shown().list.originY
            Orvel.ui.select("tasks")
            tryVerify(() => !shown() && !host.busy)
            Orvel.visits.back()
            tryVerify(() => shown() && !host.busy)
            tryVerify(() => Math.abs(shown().list.contentY - shown().list.originY - place) < 1)
        }

        function test_menuOfAPage() {
            Workspace.showModules(["tasks"])
            Workspace.addFolder("Travel & rest")
            Workspace.addPage("Plan")
            start()
            mouseClick(one("Plan", SidebarRow), 60, 10, Qt.RightButton)
            press("Add to favorites", OVMenuItem)
            one("Favorites", SidebarSection)
            compare(named("Plan", SidebarRow).length, 2)
            gone("Duplicate", OVMenuItem)
            mouseClick(one("Plan", SidebarRow), 60, 10, Qt.RightButton)
            one("Remove from favorites", OVMenuItem)
            press("Move to folder", OVMenuItem)
            press("Travel && rest", OVMenuItem)
            const saved = JSON.parse(Workspace.saved())
            compare(saved.pages[0].folderID, saved.folders[0].id)
            gone("Duplicate", OVMenuItem)
            mouseClick(one("Plan", SidebarRow), 60, 10, Qt.RightButton)
            press("Delete", OVMenuItem)
            gone("Plan", SidebarRow)
        }

        function test_tellsThatAPageIsMissing() {
            const id = Workspace.addPage("Plan")
            Orvel.ui.selectPage(id)
            start()
            one("Plan", PageEditorView)
            Workspace.deletePage(id)
            one("Page not found", PlaceNotice)
            press("Back to dashboard", OVSecondaryButton)
            compare(Orvel.ui.selection.text, "dashboard")
        }

        function folderField() {
            const isField = item => item instanceof OVTextField && item.placeholderText === "Folder name"
            tryVerify(() => all(view, isField).length === 1)
            return all(view, isField)[0]
        }

        function test_namesFolders() {
            Workspace.hideModule("reader")
            start()
            press("New folder", SidebarRow)
            tryCompare(folderField(), "activeFocus", true)
            typeText("  ")
            keyClick(Qt.Key_Return)
            one("New folder", SidebarRow)
            press("New folder", SidebarRow)
            tryCompare(folderField(), "activeFocus", true)
            typeText("Travel ")
            keyClick(Qt.Key_Return)
            press("Travel", SidebarRow)
            keyClick(Qt.Key_F2)
            tryCompare(one("Travel", OVTextField), "activeFocus", true)
            typeText("Rest")
            keyClick(Qt.Key_F2)
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_Return)
            press("Rest", SidebarRow)
            keyClick(Qt.Key_F2)
            tryCompare(one("Rest", OVTextField), "activeFocus", true)
            typeText("Not this")
            keyClick(Qt.Key_Escape)
            mouseClick(one("Rest", SidebarRow), 60, 10, Qt.RightButton)
            press("Rename", OVMenuItem)
            tryCompare(one("Rest", OVTextField), "activeFocus", true)
            keyClick(Qt.Key_Escape)
            one("Rest", SidebarRow)
            compare(JSON.parse(Workspace.saved()).folders.map(folder => folder.name), ["Rest"])
        }

        function test_walksByKeyboard() {
            Workspace.addPage("Plan", false, Workspace.addFolder("Travel"))
            for (const module of ["focus", "habits", "insights", "relax", "reader", "code", "decks"])
                Workspace.hideModule(module)
            start()
            view.forceActiveFocus()
            let rounds = 0
            while (!named("Dashboard", SidebarRow)[0].visualFocus && rounds++ < 10)
                keyClick(Qt.Key_Tab)
            verify(one("Dashboard", SidebarRow).visualFocus, "Tab reaches the row of what is shown")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text, "today")
            verify(one("Today", SidebarRow).visualFocus)
            keyClick(Qt.Key_End)
            verify(one("New folder", SidebarRow).visualFocus)
            keyClick(Qt.Key_Up)
            verify(one("Plan", SidebarRow).visualFocus)
            keyClick(Qt.Key_Left)
            verify(one("Travel", SidebarRow).visualFocus)
            keyClick(Qt.Key_Left)
            gone("Plan", SidebarRow)
            keyClick(Qt.Key_Right)
            one("Plan", SidebarRow)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Menu)
            one("Duplicate", OVMenuItem)
            keyClick(Qt.Key_Escape)
            gone("Duplicate", OVMenuItem)
            verify(one("Plan", SidebarRow).activeFocus, "The focus comes back from the menu")
            mouseClick(one("Tasks", SidebarRow))
            verify(!one("Tasks", SidebarRow).visualFocus, "No ring for the mouse")
            wait(0)
            keyClick(Qt.Key_Down)
            verify(one("Calendar", SidebarRow).visualFocus, "The keyboard goes on from a click")
        }

        /// Presses Tab until the check holds.
        function tabTo(check, what) {
            view.forceActiveFocus()
            for (let round = 0; round < 30 && !check(); ++round)
                keyClick(Qt.Key_Tab)
            verify(check(), "Tab reaches " + what)
        }

        function focused(text, type) {
            return named(text, type).some(item => item.visualFocus)
        }

        /// Whether nothing around the item cuts its focus ring.
        function isRingWhole(item) {
            const margin = 4
            for (let around = item.parent; around && around !== window.parent; around = around.parent) {
                const ring = item.mapToItem(around, -margin, -margin, item.width + 2 * margin, item.height + 2 * margin)
                if (around.clip && (ring.x < 0 || ring.y < 0 || ring.x + ring.width > around.width
                                    || ring.y + ring.height > around.height))
                    return false
            }
            return true
        }

        function test_everyScreenTakesThePlaceOfTheLast_data() {
            return [
                { tag: "no file", source: "Nowhere.qml" },
                { tag: "no QML", source: "qmldir" },
                { tag: "not all properties", source: "SearchPill.qml" }
            ]
        }

        function test_everyScreenTakesThePlaceOfTheLast(data) {
            Orvel.ui.select("tasks")
            start()
            const host = all(view, item => item instanceof DetailHost)[0]
            one("Tasks", OVPageHeader)
            host.show("qrc:/qt/qml/Orvel/Shell/" + data.source, {})
            one("This screen can't be shown", PlaceNotice)
            gone("Tasks", OVPageHeader)
            Orvel.ui.select("notes")
            one("Notes")
            gone("This screen can't be shown", PlaceNotice)
            tryCompare(host, "busy", false)
        }

        function test_tabStopsOfEveryStyle_data() {
            return [
                { tag: "sidebar", stops: 0 },
                { tag: "tabsTop", stops: 1 },
                { tag: "tabsBottom", stops: 2 },
                { tag: "glassDock", stops: 3 }
            ]
        }

        function test_tabStopsOfEveryStyle(data) {
            Workspace.setNavigation(data.tag)
            Workspace.stopMotion()
            window.width = 720
            start()
            view.forceActiveFocus()
            const stops = []
            for (let round = 0; round < 30; ++round) {
                keyClick(Qt.Key_Tab)
                const item = window.Window.activeFocusItem
                if (stops.includes(item))
                    break
                stops.push(item)
                verify(item.visualFocus, "The ring shows on " + item + item.text)
                verify(isRingWhole(item), "The ring is whole around " + item + item.text)
            }
            const before = window.Window.activeFocusItem
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            keyClick(Qt.Key_Tab)
            compare(window.Window.activeFocusItem, before)
            compare(stops.filter(item => item instanceof ShellTab).length, data.stops)
            window.width = 1240
        }

        function test_arrowsWalkAlongTheTabs() {
            Workspace.setNavigation("tabsTop")
            start()
            tabTo(() => focused("Dashboard", ShellTab), "the tabs")
            for (const next of ["Today", "Focus", "Tasks", "Calendar"]) {
                keyClick(Qt.Key_Right)
                verify(focused(next, ShellTab), "Right goes to " + next)
            }
            keyClick(Qt.Key_Left)
            verify(focused("Tasks", ShellTab))
            keyClick(Qt.Key_End)
            verify(focused("Reader", ShellTab))
            keyClick(Qt.Key_Home)
            verify(focused("Dashboard", ShellTab))
            mouseClick(one("Tasks", ShellTab))
            keyClick(Qt.Key_Right)
            verify(focused("Calendar", ShellTab), "The keyboard goes on from a click")
        }

        function test_settingsAreReachedByTab() {
            start()
            tabTo(() => focused("Settings", SidebarRow), "the settings")
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text, "settings")
        }

        function test_theFocusOutlivesWhatHadIt() {
            Workspace.stopMotion()
            start()
            const host = all(view, item => item instanceof DetailHost)[0]
            tabTo(() => focused("Dashboard", SidebarRow), "the sidebar")
            for (const button of ["Dashboard", "Dashboard", "Dashboard", "Dashboard"]) {
                Orvel.ui.isSidebarVisible = true
                Workspace.setNavigation("tabsTop")
                one("Dashboard", ShellTab)
                tryVerify(() => window.Window.activeFocusItem?.visualFocus, 1000, "Something has the focus")
                verify(!host.activeFocus)
            }
            Workspace.setNavigation("sidebar")
            tryVerify(() => focused("Dashboard", SidebarRow))
            tabTo(() => focused("Hide sidebar", OVIconButton), "the button")
            keyClick(Qt.Key_Space)
            tryVerify(() => focused("Show sidebar", OVIconButton))
            keyClick(Qt.Key_Space)
            tryVerify(() => focused("Hide sidebar", OVIconButton))
        }

        function test_aPageMovedIntoAClosedFolderLeavesTheFocusOnIt() {
            Workspace.showModules(["dashboard"])
            Workspace.addFolder("Travel")
            Workspace.addPage("Plan")
            start()
            press("Travel", SidebarRow)
            tabTo(() => focused("Dashboard", SidebarRow) || focused("Travel", SidebarRow), "the sidebar")
            while (!focused("Plan", SidebarRow))
                keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Menu)
            press("Move to folder", OVMenuItem)
            press("Travel", OVMenuItem)
            gone("Plan", SidebarRow)
            tryVerify(() => focused("Travel", SidebarRow))
        }

        function test_aClickKeepsThePlaceAndASelectionIsRevealed() {
            let last = ""
            for (let i = 0; i < 40; ++i)
                last = Workspace.addPage("Page " + i)
            start()
            const list = all(view, item => item instanceof SidebarList)[0].list
            Orvel.ui.selectPage(last)
            const row = one("Page 39", SidebarRow)
            tryVerify(() => row.mapToItem(list, 0, row.height).y <= list.height, 1000, "The row of the page is in sight")
            const place = list.contentY
            verify(place > 0)
            press("Page 35", SidebarRow)
            wait(0)
            fuzzyCompare(list.contentY, place, 0.5)
            Orvel.ui.select("dashboard")
            tryVerify(() => list.contentY < place)
        }

        // A window is low for a moment while it opens.
        function test_theSidebarBeginsAtItsTop() {
            start()
            const list = all(view, item => item instanceof SidebarList)[0].list
            view.anchors.fill = null
            view.height = 160
            tryVerify(() => list.contentY > list.originY)
            view.height = window.height
            tryVerify(() => list.atYBeginning)
            one("Search")
        }

        function test_aSelectedPageOpensItsFolder() {
            const plan = Workspace.addPage("Plan", false, Workspace.addFolder("Travel"))
            start()
            press("Travel", SidebarRow)
            gone("Plan", SidebarRow)
            Orvel.ui.selectPage(plan)
            one("Plan", SidebarRow)
            press("Travel", SidebarRow)
            gone("Plan", SidebarRow)
        }

        function test_theDockShowsLabelsWhereTheyAreWanted() {
            Workspace.setNavigation("glassDock")
            Workspace.setTabBarLabels(true)
            start()
            one("Today", OVText)
            Workspace.setTabBarLabels(false)
            gone("Today", OVText)
        }

        function test_theNameOfTheWorkspaceFits() {
            Workspace.setCompactSidebar(true)
            start()
            compare(one("My Workspace", OVText).truncated, false)
            Workspace.setCompactSidebar(false)
        }

        function test_noRoomIsLeftByAnotherStyle() {
            Workspace.stopMotion()
            start()
            const host = all(view, item => item instanceof DetailHost)[0]
            const before = Qt.rect(host.x, host.y, host.width, host.height)
            for (const style of ["tabsTop", "tabsBottom", "glassDock", "sidebar"]) {
                Workspace.setNavigation(style)
                wait(20)
            }
            compare(Qt.rect(host.x, host.y, host.width, host.height), before)
        }

        function test_groupGoesWithItsLastModule() {
            for (const module of ["habits", "insights", "relax"])
                Workspace.hideModule(module)
            start()
            one("Explore", SidebarSection)
            Workspace.hideModule("reader")
            gone("Explore")
        }

        function test_sidebarSlidesAway() {
            start()
            Orvel.ui.isSidebarVisible = false
            gone("New page", SidebarRow)
            press("Show sidebar", OVIconButton)
            compare(Orvel.ui.isSidebarVisible, true)
            one("New page", SidebarRow)
        }

        function test_bottomBar_data() {
            return [
                { tag: "three", modules: ["dashboard", "today", "focus"], tabs: 3, more: [] },
                { tag: "five", modules: ["dashboard", "today", "focus", "tasks", "calendar"], tabs: 4, more: ["Calendar"] }
            ]
        }

        function test_bottomBar(data) {
            Workspace.setNavigation("tabsBottom")
            Workspace.showModules(data.modules)
            Workspace.addPage("Plan", true)
            start()
            one("More", ShellTab)
            compare(all(window, item => item instanceof ShellTab).length, data.tabs + 1)
            press("More", ShellTab)
            one("Favourites", OverflowRow)
            const listed = all(window.parent, item => item instanceof OverflowRow).map(row => row.text)
            compare(listed.sort(), data.more.concat(["Favourites", "Plan", "Pages", "Plan"]).sort())
            press("Plan", OverflowRow)
            one("Plan", PageEditorView)
            gone("Favourites", OverflowRow)
        }

        function test_everyStyleShowsTheDetail_data() {
            return ["sidebar", "tabsTop", "tabsBottom", "glassDock"].map(style => ({ tag: style }))
        }

        function test_everyStyleShowsTheDetail(data) {
            Workspace.setNavigation(data.tag)
            start()
            press("Today")
            const host = all(view, item => item instanceof DetailHost)[0]
            tryVerify(() => host.currentItem instanceof TodayView)
            // A hidden module has no button, but a key may still lead there.
            Workspace.hideModule("relax")
            Orvel.ui.select("relax")
            tryVerify(() => host.currentItem instanceof RelaxView)
            compare(named("Relax", SidebarRow).length + named("Relax", ShellTab).length, 0)
        }

        function test_themeRebuildsAllButTheSettings() {
            Workspace.setNavigation("tabsTop")
            Orvel.ui.select("relax")
            start()
            const host = all(view, item => item instanceof DetailHost)[0]
            const before = host.currentItem
            Workspace.setAccent("teal")
            tryVerify(() => host.currentItem && host.currentItem !== before)
            Orvel.ui.select("settings")
            tryCompare(host, "identity", "settings")
            const settings = host.currentItem
            Workspace.setAccent("rose")
            Workspace.setNavigation("glassDock")
            one("Search", ShellTab)
            wait(0)
            verify(host.currentItem === settings, "The settings stand")
        }

        function test_workspaceMenu() {
            start()
            press("My Workspace", ShellWorkspaceMenu)
            press("Workspace settings", OVMenuItem)
            compare(Orvel.ui.selection.text, "settings")
            gone("Workspace settings", OVMenuItem)
            press("My Workspace", ShellWorkspaceMenu)
            press("Keyboard shortcuts", OVMenuItem)
            compare(Orvel.ui.isShortcutsPresented, true)
            gone("Keyboard shortcuts", OVMenuItem)
            one("Move around Orvel without leaving the keys.")
            keyClick(Qt.Key_Escape)
            compare(Orvel.ui.isShortcutsPresented, false)
            gone("Move around Orvel without leaving the keys.")
            press("My Workspace", ShellWorkspaceMenu)
            press("New note", OVMenuItem)
            compare(JSON.parse(Workspace.saved()).pages[0].kind, "note")
            gone("New note", OVMenuItem)
            press("Search", SidebarRow)
            compare(Orvel.ui.isSearchPresented, true)
            one("QUICK LINKS")
        }
    }
}
