import QtQuick
import Orvel.Tasks
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property TasksView view

    width: 1000
    height: 640

    Component {
        id: screen

        TasksView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "TasksView"
        scene: root.view

        function init() {
            Workspace.reset()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function saved() {
            return JSON.parse(Workspace.saved()).tasks
        }

        function titles() {
            return saved().map(task => task.title).join()
        }

        function test_addsTasks() {
            open()
            type("buy  milk")
            keyClick(Qt.Key_Return)
            compare(titles(), "buy  milk")
            tryVerify(() => find("buy  milk"))
            compare(find("1 open").visible, true)

            type("call")
            click("high")
            click("Due date")
            click("Add task")
            const task = saved()[1]
            compare(task.title, "call")
            compare(task.status, "todo")
            compare(task.priority, "high")
            compare(task.dueDate, "2026-03-13T09:30:00Z")
            compare(find("Due date").checked, false)
            compare(focused().Accessible.name, "New task")

            type("more")
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            compare(saved().length, 3)
            compare(saved()[2].priority, "medium")
            compare(saved()[2].dueDate, undefined)
        }

        function test_blanksAddNothing() {
            open()
            type("  ")
            click("Due date")
            const field = find("New task")
            verify(!find("Add task").enabled)
            mouseClick(field)
            keyClick(Qt.Key_Return)
            compare(saved().length, 0)
            compare(field.text, "  ")
            verify(find("Due date").checked)
        }

        function test_cyclesByMouse() {
            Workspace.addTask("Plan")
            open()
            click("Status: To do, Plan")
            compare(saved()[0].status, "inProgress")
            click("Status: In progress, Plan")
            compare(saved()[0].status, "done")
            verify(saved()[0].completedDate !== undefined)
            click("Status: Done, Plan")
            compare(saved()[0].status, "todo")
            click("Priority: medium, Plan")
            compare(saved()[0].priority, "high")
            click("Priority: high, Plan")
            compare(saved()[0].priority, "low")
        }

        function test_openFilterDropsDoneTasks() {
            Workspace.addTask("Plan", "inProgress")
            Workspace.addTask("Write")
            open()
            click("Open")
            verify(!find("Completed, 1"))
            click("Status: In progress, Plan")
            tryVerify(() => find("Completed, 1"))
            // The place is kept until the pointer moves.
            mouseMove(root.view, 1, 1)
            tryVerify(() => !find("Plan"))
            click("Completed, 1")
            tryVerify(() => find("Plan"))
            mouseMove(find("Plan"))
            click("Delete: Plan")
            tryVerify(() => !find("Completed, 1"))
            compare(titles(), "Write")
        }

        function test_emptyState() {
            Workspace.addTask("Someday")
            open()
            click("Today")
            tryVerify(() => find("No open tasks"))
            verify(find("Enjoy the calm  -  or add something above."))
            click("All")
            tryVerify(() => !find("No open tasks"))
        }

        function test_tabOrder() {
            Workspace.addTask("Plan")
            Workspace.addTask("Write")
            open()
            const stops = []
            for (let i = 0; i < 7; ++i) {
                stops.push(focused().Accessible.name)
                keyClick(Qt.Key_Tab)
            }
            compare(stops.join("|"), "New task|Due date|Priority|All|Plan|New task|Due date")
            for (let i = 0; i < 3; ++i)
                keyClick(Qt.Key_Backtab)
            compare(focused().Accessible.name, "Plan")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Backtab)
            compare(focused().Accessible.name, "All")
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "Open")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Write")
        }

        function test_worksByKeys() {
            for (const title of ["a", "b", "c"])
                Workspace.addTask(title)
            open()
            focusRow("b")
            verify(focused().visualFocus)
            keyClick(Qt.Key_Space)
            compare(saved()[1].status, "inProgress")
            keyClick(Qt.Key_P)
            compare(saved()[1].priority, "high")

            keyClick(Qt.Key_Return)
            type("!?")
            keyClick(Qt.Key_Escape)
            compare(saved()[1].title, "b!?")
            tryVerify(() => focused().Accessible.name === "b!?")

            keyClick(Qt.Key_Delete)
            compare(titles(), "a,c")
            compare(focused().Accessible.name, "c")
            keyClick(Qt.Key_Delete)
            compare(focused().Accessible.name, "a")
            keyClick(Qt.Key_Delete)
            compare(saved().length, 0)
            compare(focused().Accessible.name, "All")
        }

        /// Goes to a row by keys.
        function focusRow(title) {
            for (let i = 0; i < 20 && !focused().Accessible.name.startsWith(title); ++i)
                keyClick(focused().ListView.view ? Qt.Key_Down : Qt.Key_Tab)
        }

        function test_keysStayInTheTitle() {
            const [a, b, c] = ["a", "b", "c"].map(title => Workspace.addTask(title))
            open()
            click("Open")
            focusRow("b")
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Home)
            const field = focused()
            type("P ")
            Workspace.addTask("d")
            Workspace.finishTask(a)
            type("x")
            wait(0)
            type("y")
            compare(focused(), field)
            compare(field.cursorPosition, 4)
            compare(saved()[1].title, "P xyb")
            Workspace.renameTask(b, "P xyb, he said")
            tryCompare(field, "text", "P xyb, he said")
            compare(field.cursorPosition, 4)
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Delete)
            compare(titles(), "a,P xy, he said,c,d")
        }

        function test_composesInTheTitle() {
            Workspace.addTask("a")
            open()
            focusRow("a")
            keyClick(Qt.Key_Return)
            const field = focused()
            Composer.compose("に")
            compare(field.preeditText, "に")
            Workspace.addTask("b")
            wait(0)
            compare(field.preeditText, "に")
            compare(titles(), "a,b")
            Composer.commit("日")
            compare(titles(), "a日,b")
            compare(focused(), field)
        }

        function test_dueDateByMenu() {
            Workspace.addTask("Plan")
            open()
            focusRow("Plan")
            keyClick(Qt.Key_Menu)
            tryVerify(() => root.Window.contentItem && find("Set due date…", overlay()))
            mouseClick(find("Set due date…", overlay()))
            tryVerify(() => find("15", overlay()))
        }

        function overlay() {
            return root.Window.contentItem.parent ?? root.Window.contentItem
        }

        function test_assistiveTechnology() {
            Workspace.addTask("Plan")
            Workspace.addTask("Rest")
            open()
            click("Open")
            Assistive.begin()
            Assistive.press(find("Status: To do, Rest"))
            tryVerify(() => find("Status: In progress, Rest"))
            Assistive.press(find("Status: In progress, Rest"))
            tryVerify(() => find("Completed, 1"))
            const seen = Assistive.describeAll(root.Window.window)
            for (const what of ["Heading Tasks", "EditableText New task", "CheckBox Due date", "PageTabList Priority",
                                "Grouping Filter", "RadioButton All", "RadioButton Open checked", "ListItem Plan",
                                "Button Status: To do, Plan", "Button Priority: medium, Plan", "CheckBox Completed, 1"])
                verify(seen.includes(what), what)
            Assistive.press(find("Status: To do, Plan"))
            compare(saved()[0].status, "inProgress")
            Assistive.press(find("Completed, 1"))
            tryVerify(() => find("Rest"))
            Assistive.press(find("Plan"))
            compare(focused().Accessible.name, "Title")
        }

        function test_labelsChangeAtMidnight() {
            Workspace.addTask("Plan", "todo", "medium", 2)
            open()
            tryVerify(() => find("Due: Today, Plan"))
            Workspace.advanceHours(24)
            tryVerify(() => find("Due: Mar 13, Plan"))
        }

        function test_rowsAreUsedAgain() {
            for (let i = 0; i < 40; ++i)
                Workspace.addTask("Task " + i, i % 2 ? "done" : "todo")
            open()
            focusRow("Task 0")
            for (const number of [2, 6]) {
                keyClick(Qt.Key_Down)
                keyClick(Qt.Key_Delete)
                compare(saved().length, number === 2 ? 39 : 38)
                mouseMove(root.view, 1, number)
                tryVerify(() => !find("Task " + number))
            }
            for (let i = 0; i < 8; ++i)
                keyClick(i % 4 < 2 ? Qt.Key_PageDown : Qt.Key_PageUp)
            keyClick(Qt.Key_Home)
            const rows = root.view.children[0].contentItem.children
            for (let i = 0; i < rows.length; ++i) {
                if (!rows[i].visible || !rows[i].taskID)
                    continue
                const number = Number(rows[i].title.slice(5))
                compare(rows[i].isDone, number % 2 === 1)
                compare(rows[i].height, rows[i].rowHeight)
                verify(find("Status: " + (number % 2 ? "Done" : "To do") + ", Task " + number, rows[i]), rows[i].title)
            }
            // A row that was removed before takes the pointer again.
            for (const number of [0, 4, 8, 10]) {
                mouseMove(find("Task " + number))
                tryVerify(() => find("Delete: Task " + number))
            }
            const seen = Assistive.describeAll(root.Window.window).filter(text => text.startsWith("ListItem"))
            compare(seen.length, new Set(seen).size)
        }

        function test_tenThousandRows() {
            Workspace.addTasks(10000)
            open()
            focusRow("Task 0")
            keyClick(Qt.Key_End)
            compare(focused().Accessible.name, "Task 9999")
            keyClick(Qt.Key_Up)
            compare(focused().Accessible.name, "Task 9998")
            keyClick(Qt.Key_Home)
            compare(focused().Accessible.name, "Task 0")
            verify(root.view.children[0].contentItem.children.length < 60)
        }
    }
}
