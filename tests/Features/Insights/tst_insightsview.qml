import QtQuick
import Orvel.Insights
import Orvel.Testing

/// The real screen, worked with real mouse and key events.
Item {
    id: root

    property InsightsView view

    width: 1000
    height: 640

    Component {
        id: screen

        InsightsView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "InsightsView"
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

        function fill() {
            Workspace.addTask("a", "done")
            Workspace.addTask("b", "done")
            Workspace.addTask("c")
            Workspace.addPage("p")
            Workspace.addHabit("Read", [0, 1])
        }

        function test_saysWhereNothingIs() {
            open()
            for (const hint of ["No tasks yet.", "Nothing completed yet.", "No pages in the last two weeks.",
                                "No events recorded yet.", "No active projects.", "No habits to show."])
                verify(find(hint), hint)
            Workspace.addHabit("Read", [0])
            tryVerify(() => find("Read, 1"))
            verify(!find("No habits to show."))
            verify(find("Habit streak, 1"))
        }

        function test_keysReadOutTheValues() {
            fill()
            open()
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "More: Task status")
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "To do, 1")
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "In progress, 0")
            keyClick(Qt.Key_End)
            compare(focused().Accessible.name, "Done, 2")
            keyClick(Qt.Key_Right)
            compare(focused().Accessible.name, "Done, 2")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_End)
            compare(focused().Accessible.name, "Fri, Mar 13, 2")
            // A chart further below comes into sight.
            for (let i = 0; i < 10 && focused().Accessible.name !== "Read, 2"; ++i)
                keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Read, 2")
            const place = focused().mapToItem(root, 0, 0)
            verify(place.y >= 0 && place.y + focused().height <= root.height, "in sight at " + place.y)
        }

        function test_thePointerReadsOutTheValues() {
            fill()
            open()
            const today = find("Fri, Mar 13, 2")
            const chart = today.parent
            mouseMove(chart, today.x + today.width / 2, chart.height / 2)
            compare(chart.current, 13)
            mouseMove(root, 1, 1)
            compare(chart.current, -1)
        }

        function test_copies() {
            fill()
            open()
            mouseClick(find("More: Pages created"))
            const overlay = root.Window.contentItem
            tryVerify(() => find("Copy numbers", overlay))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            tryVerify(() => find("Numbers copied", overlay))
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Menu)
            tryVerify(() => find("Copy as picture", overlay))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            tryVerify(() => find("Picture copied", overlay))
            tryVerify(() => find("More: Pages created"))
        }

        function test_pointsComeAndGo() {
            fill()
            open()
            for (let i = 0; i < 60; ++i)
                Workspace.addHabit("Habit " + i)
            tryVerify(() => find("Habit 59, 0"))
            const target = find("Habit 59, 0")
            target.forceActiveFocus(Qt.TabFocusReason)
            compare(focused(), target)
            Workspace.reset()
            tryVerify(() => find("No habits to show."))
        }
    }
}
