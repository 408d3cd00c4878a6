import QtQuick
import QtTest
import Orvel.MenuBar
import Orvel.Session
import Orvel.Testing

/// The real panel, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property MenuBarPanel panel

    width: 400
    height: 700

    Component {
        id: content

        MenuBarPanel {
            focus: true
            width: implicitWidth
        }
    }

    SignalSpy {
        id: opened

        signalName: "openRequested"
        target: root.panel
    }

    ScreenTestCase {
        name: "MenuBarPanel"
        scene: root.panel

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
            root.panel = createTemporaryObject(content, root)
            opened.clear()
            root.panel.begin()
            waitForRendering(root.panel)
        }

        function find(name, from = root.panel) {
            for (let i = 0; i < from.children.length; ++i) {
                const child = from.children[i]
                if (!child.visible)
                    continue
                const found = child.Accessible.name === name && !child.Accessible.ignored ? child : find(name, child)
                if (found)
                    return found
            }
            return null
        }

        function tasks() {
            return JSON.parse(Workspace.saved()).tasks
        }

        function test_addsTasksOfToday() {
            verify(!find("DUE TODAY"))
            type("  call mum ")
            keyClick(Qt.Key_Return)
            compare(tasks()[0].title, "call mum")
            compare(tasks()[0].dueDate, "2026-03-13T09:30:00Z")
            compare(tasks()[0].status, "todo")
            compare(tasks()[0].projectID, undefined)
            compare(focused().text, "")
            verify(focused().cursorPosition !== undefined, "the caret stays in the field")
            verify(find("Task added"))
            keyClick(Qt.Key_Return)
            type("   ")
            keyClick(Qt.Key_Return)
            compare(tasks().length, 1)
            tryVerify(() => find("Open, 1") && find("Due, 1") && find("Habits, 0"))
            Orvel.undo.undo()
            compare(tasks().length, 0)
        }

        function test_ticksOffWhatIsDue() {
            Workspace.addTask("first", "todo", "medium", 1)
            Workspace.addTask("later", "todo", "medium", 48)
            Workspace.addTask("second", "todo", "medium", 2)
            Workspace.addTask("done", "done", "medium", 2)
            tryVerify(() => find("DUE TODAY"))
            verify(find("Open, 3"))
            verify(find("Due, 2"))
            mouseClick(find("Complete first"))
            tryVerify(() => !find("Complete first"))
            compare(tasks()[0].status, "done")
            verify(tasks()[0].completedDate)
            tryVerify(() => find("Open, 2") && find("Due, 1"))
            find("Complete second").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            tryVerify(() => !find("DUE TODAY"))
            tryVerify(() => focused()?.cursorPosition !== undefined, 1000, "the focus is not lost")
        }

        function test_tasksAreListedOnlyIfWanted() {
            Workspace.addTask("first", "todo", "medium", 1)
            tryVerify(() => find("DUE TODAY"))
            Workspace.setMenuBarShowsTasks(false)
            tryVerify(() => !find("DUE TODAY"))
            verify(find("Due, 1"))
        }

        function test_movesOnAtMidnight() {
            Workspace.addTask("today", "todo", "medium", 1)
            Workspace.addTask("tomorrow", "todo", "medium", 24)
            tryVerify(() => find("Complete today"))
            Workspace.advanceHours(24)
            tryVerify(() => find("Complete tomorrow") && !find("Complete today"))
            verify(find("Open, 2") && find("Due, 1"))
            Workspace.advanceHours(24)
            tryVerify(() => !find("DUE TODAY"))
        }

        function test_leadsIntoTheWindow() {
            for (const link of [["Focus", "focus"], ["Relax", "relax"], ["Settings", "settings"], ["Dashboard", "dashboard"]]) {
                opened.clear()
                mouseClick(find(link[0]))
                compare(opened.count, 1)
                compare(Workspace.selection(), link[1])
            }
            opened.clear()
            mouseClick(find("Open Orvel"))
            compare(opened.count, 1)
        }
    }
}
