import QtQuick
import Orvel.Habits
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property HabitsView view

    width: 1000
    height: 640

    Component {
        id: screen

        HabitsView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "HabitsView"
        scene: root.view

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function overlay() {
            return root.Window.contentItem.parent ?? root.Window.contentItem
        }

        function saved() {
            return JSON.parse(Workspace.saved()).habits
        }

        function test_composes() {
            open()
            click("Add your first habit")
            tryVerify(() => focused().Accessible.name === "Habit name, for example Walk after lunch")
            verify(!find("No habits yet"))
            verify(!find("Add habit").enabled)
            for (const character of "Walk")
                keyClick(character)
            click("🚶")
            click("Teal")
            click("3× a week")
            click("Add habit")
            compare(saved().length, 1)
            compare(saved()[0].name, "Walk")
            compare(saved()[0].emoji, "🚶")
            compare(saved()[0].accent, "teal")
            compare(saved()[0].targetPerWeek, 3)
            tryVerify(() => find("Walk, 0/3 this week"))
            tryVerify(() => focused().Accessible.name === "New habit")

            keyClick(Qt.Key_Space)
            tryVerify(() => focused().Accessible.name === "Habit name, for example Walk after lunch")
            keyClick("x")
            // In a small window the form scrolls along with the focus.
            root.height = 300
            for (let i = 0; i < 4; ++i)
                keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Add habit")
            tryVerify(() => focused().mapToItem(root.view, 0, focused().height).y <= 300)
            keyClick(Qt.Key_Escape)
            root.height = 640
            tryVerify(() => focused().Accessible.name === "New habit")
            compare(saved().length, 1)
        }

        function test_flipsByMouse() {
            Workspace.addHabit("Read", [1])
            open()
            click("Mark done: Read")
            compare(saved()[0].completions, ["2026-03-12", "2026-03-13"])
            tryVerify(() => find("Read, 2/7 this week, streak: 2"))
            click("Wednesday, March 11, 2026, not done")
            tryVerify(() => find("Wednesday, March 11, 2026, done"))
            compare(saved()[0].completions.length, 3)
            click("Mark not done: Read")
            compare(saved()[0].completions, ["2026-03-11", "2026-03-12"])
            const tomorrow = find("Saturday, March 14, 2026, not done")
            compare(tomorrow.enabled, false)
            mouseClick(tomorrow)
            compare(saved()[0].completions.length, 2)
        }

        function test_keysGoOnFromAClick() {
            for (const name of ["a", "b"])
                Workspace.addHabit(name)
            open()
            click("Tuesday, March 10, 2026, not done", find("b, 0/7 this week"))
            tryVerify(() => focused().Accessible.name === "Tuesday, March 10, 2026, done")
            verify(!focused().visualFocus, "no ring after a click")
            keyClick(Qt.Key_Space)
            compare(saved()[1].completions, [])
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "Wednesday, March 11, 2026, not done")
            verify(focused().visualFocus)
            keyClick(Qt.Key_Space)
            compare(saved()[1].completions, ["2026-03-11"])
            click("Mark done: a")
            tryVerify(() => focused().Accessible.name === "a, 1/7 this week, streak: 1")
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "b, 1/7 this week")
        }

        function test_worksByKeys() {
            for (const name of ["a", "b", "c"])
                Workspace.addHabit(name)
            open()
            compare(focused().Accessible.name, "New habit")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "a, 0/7 this week")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Space)
            tryVerify(() => focused().Accessible.name === "b, 1/7 this week, streak: 1")
            compare(saved()[1].completions, ["2026-03-13"])
            for (let i = 0; i < 5; ++i)
                keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "Thursday, March 12, 2026, not done")
            keyClick(Qt.Key_Space)
            compare(saved()[1].completions.length, 2)
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "Thursday, March 12, 2026, not done")
            keyClick(Qt.Key_Space)
            compare(saved()[2].completions, ["2026-03-12"])
            // Days to come are not to be reached.
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "Friday, March 13, 2026, not done")
            keyClick(Qt.Key_Up)
            for (let i = 0; i < 6; ++i)
                keyClick(Qt.Key_Left)
            compare(focused().Accessible.name, "b, 2/7 this week, streak: 2")

            keyClick(Qt.Key_Delete)
            compare(saved().map(habit => habit.name).join(), "a,c")
            tryVerify(() => focused().Accessible.name.startsWith("c,"))
            keyClick(Qt.Key_Delete)
            tryVerify(() => focused().Accessible.name === "Add a habit")
            tryVerify(() => find("c, 0/7 this week") === null)
            keyClick(Qt.Key_Up)
            tryVerify(() => focused().Accessible.name.startsWith("a,"))
            keyClick(Qt.Key_Delete)
            tryVerify(() => find("No habits yet"))
            tryVerify(() => focused().Accessible.name === "New habit")
        }

        function test_menu() {
            Workspace.addHabit("Read")
            open()
            click("More: Read")
            tryVerify(() => find("Weekly goal", overlay()))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Right)
            tryVerify(() => find("2× a week", overlay()))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(saved()[0].targetPerWeek, 2)
            click("More: Read")
            click("Mark done", overlay())
            compare(saved()[0].completions.length, 1)
            tryVerify(() => !find("Mark not done", overlay()))
            click("More: Read")
            click("Delete", overlay())
            compare(saved().length, 0)
        }

        function test_changesAtMidnight() {
            Workspace.addHabit("Read", [0])
            open()
            tryVerify(() => find("Done today, 1/1"))
            Workspace.advanceHours(24)
            tryVerify(() => find("Done today, 0/1"))
            compare(find("Saturday, March 14, 2026, not done").enabled, true)
        }

        function test_assistiveTechnology() {
            Workspace.addHabit("Read", [0])
            open()
            const seen = Assistive.describeAll(root.Window.window)
            for (const what of ["Heading Habits", "Button New habit", "ListItem Read, 1/7 this week, streak: 1 checked",
                                "Button Mark not done: Read", "Button Friday, March 13, 2026, done",
                                "Button Monday, March 9, 2026, not done", "Button More: Read", "Button Add a habit"])
                verify(seen.includes(what), what + " in " + seen)
            Assistive.press(find("Monday, March 9, 2026, not done"))
            compare(saved()[0].completions.length, 2)
        }

        function test_manyHabitsAreNotAllThere() {
            for (let i = 0; i < 120; ++i)
                Workspace.addHabit("Habit " + i)
            open()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_End)
            compare(focused().Accessible.name, "Add a habit")
            keyClick(Qt.Key_Up)
            verify(focused().Accessible.name.startsWith("Habit 119"))
            verify(root.view.children[0].contentItem.children.length < 60)
        }
    }
}
