import QtQuick
import Orvel.Dashboard
import Orvel.Session
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property DashboardView view

    width: 1000
    height: 640

    Component {
        id: screen

        DashboardView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "DashboardView"
        scene: root.view

        function init() {
            Workspace.reset()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        /// Goes to the item by the Tab key.
        function tabTo(name, key = Qt.Key_Tab) {
            for (let i = 0; i < 40; ++i) {
                keyClick(key)
                if (focused().Accessible.name === name)
                    return focused()
            }
            fail("Tab does not lead to " + name)
        }

        function titles() {
            return JSON.parse(Workspace.saved()).tasks.map(task => task.title).join()
        }

        function test_quickCaptureIsReadyForTheNext() {
            open()
            const field = tabTo("Add a task")
            const place = field.mapToItem(root.view, 0, 0).y
            verify(place >= 0 && place + field.height <= root.height, "the field is in view")
            type(" one  two ")
            keyClick(Qt.Key_Return)
            compare(titles(), "one  two")
            compare(focused(), field)
            compare(field.text, "")
            type("   ")
            verify(!find("Add task").enabled)
            keyClick(Qt.Key_Return)
            compare(field.text, "   ")
            compare(titles(), "one  two")
            type("three")
            mouseClick(find("Add task"))
            compare(titles(), "one  two,three")
            compare(focused(), field)
            tryVerify(() => find("Open tasks, 2"))
        }

        function test_tilesLead_data() {
            return [
                { tag: "Open tasks, 0", place: "tasks" }, { tag: "Due today, 0", place: "today" },
                { tag: "Events today, 0", place: "calendar" }, { tag: "Habits done, 0", place: "habits" }
            ]
        }

        function test_tilesLead(data) {
            open()
            mouseClick(find(data.tag))
            compare(Orvel.ui.selection.text, data.place)
            Workspace.reset()
            tabTo(data.tag)
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text, data.place)
        }

        function test_completesByKeysWithTheFocusKept() {
            for (const title of ["a", "b", "c"])
                Workspace.addTask(title, "todo", "medium", 1)
            open()
            tabTo("a, priority medium")
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "b, priority medium")
            keyClick(Qt.Key_Space)
            compare(focused().Accessible.name, "c, priority medium")
            tryVerify(() => !find("b, priority medium"))
            keyClick(Qt.Key_Space)
            compare(focused().Accessible.name, "a, priority medium")
            keyClick(Qt.Key_Space)
            tryVerify(() => find("You're all clear. Nice."))
            verify(focused().Accessible.name !== "", "the focus is on something: " + focused())
            compare(JSON.parse(Workspace.saved()).tasks.filter(task => task.status === "done").length, 3)
        }

        function test_aSecondClickMeetsNothingElse() {
            for (const title of ["a", "b"])
                Workspace.addTask(title, "todo", "medium", 1)
            open()
            const mark = find("Complete: a")
            const place = mark.mapToItem(root, mark.width / 2, mark.height / 2)
            mouseMove(root, place.x, place.y)
            mouseClick(root, place.x, place.y)
            wait(400)
            mouseClick(root, place.x, place.y)
            compare(JSON.parse(Workspace.saved()).tasks.map(task => task.status).join(), "done,todo")
            mouseMove(root, 1, 1)
            tryVerify(() => !find("Complete: a"))
        }

        function test_opensPages() {
            const page = Workspace.addPage("Plan", true)
            open()
            mouseClick(find("Favourites"))
            tryVerify(() => find("Plan, Today"))
            mouseClick(find("Plan, Today"))
            compare(Orvel.ui.selection.text.toLowerCase(), "page/" + page)
            mouseClick(find("Recent"))
            Workspace.reset()
            tryVerify(() => find("No pages yet."))
        }

        function test_everyStopHasAName() {
            Workspace.addTask("a", "todo", "medium", 1)
            Workspace.addPage("Plan")
            open()
            const first = tabTo("Another quote")
            const seen = []
            do {
                seen.push(focused().Accessible.name)
                verify(focused().Accessible.name !== "", "after " + seen.join())
                keyClick(Qt.Key_Tab)
            } while (focused() !== first && seen.length < 30)
            verify(seen.length > 9 && seen.length < 20, seen.join())
            for (let i = seen.length - 1; i >= 0; --i) {
                keyClick(Qt.Key_Backtab)
                compare(focused().Accessible.name, seen[i])
            }
        }
    }
}
