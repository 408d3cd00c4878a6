import QtQuick
import Orvel.Focus
import Orvel.Testing

/// The real screen, worked with real mouse and key events.
Item {
    id: root

    property FocusView view

    width: 1000
    height: 900

    Component {
        id: screen

        FocusView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "FocusView"
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

        function shows(name) {
            tryVerify(() => find(name) !== null, 2000, "shows " + name)
        }

        /// The timer reads so, and its ring shows this part of the session.
        function showsPart(name, part) {
            shows(name)
            tryVerify(() => Math.abs(find(name).shown - part) < 0.001, 2000, "the ring shows " + part)
        }

        function sessions() {
            for (let i = 0; i < 20; ++i) {
                if (find("Sessions today, " + i))
                    return i
            }
            return -1
        }

        function test_worksByKeys() {
            open()
            const before = sessions()
            compare(focused().Accessible.name, "Start")
            shows("25:00, Ready")
            keyClick(Qt.Key_1)
            shows("15:00, Ready")
            keyClick(Qt.Key_Space)
            shows("15:00, Focusing")
            keyClick(Qt.Key_4)
            Workspace.advanceSeconds(61)
            showsPart("13:59, Focusing", 61 / 900)
            keyClick(Qt.Key_Space)
            shows("13:59, Paused")
            keyClick(Qt.Key_R)
            showsPart("15:00, Ready", 0)
            keyClick(Qt.Key_L)
            compare(sessions(), before)
            keyClick(Qt.Key_Space)
            Workspace.advanceSeconds(5)
            // Reset has the focus, so Space presses it; the other keys work from everywhere.
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Reset")
            keyClick(Qt.Key_L)
            shows("15:00, Ready")
            compare(sessions(), before + 1)
            keyClick(Qt.Key_3)
            shows("45:00, Ready")
        }

        function test_worksByMouse() {
            open()
            const before = sessions()
            click("45 min")
            shows("45:00, Ready")
            click("Start")
            compare(find("45 min").enabled, false)
            Workspace.advanceSeconds(2701)
            shows("45:00, Ready")
            compare(sessions(), before + 1)
            compare(Workspace.told(), ["45 minutes of focus. Take a short break."])
            compare(find("Log session").enabled, false)
        }

        function test_theFocusStays() {
            open()
            for (let i = 0; i < 2; ++i)
                keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "Log session")
            keyClick(Qt.Key_Space)
            tryVerify(() => focused().Accessible.name === "Start")
            // A session that ends by itself takes the button away from under the focus; the keys go on.
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            Workspace.advanceSeconds(1501)
            shows("25:00, Ready")
            keyClick(Qt.Key_Space)
            shows("25:00, Focusing")
        }

        function test_linksATask() {
            open()
            shows("No open tasks  -  add one on the Tasks page to link it here.")
            Workspace.addTask("Plan")
            const write = Workspace.addTask("Write")
            click("Choose a task…")
            const overlay = root.Window.contentItem
            tryVerify(() => find("Write", overlay))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            shows("Linked task: Write")
            shows("Write, To do")
            Workspace.finishTask(write)
            shows("Write, Done")
            click("Unlink task")
            tryVerify(() => !find("Write, Done"))
            shows("Choose a task…")
        }

        function test_leavingEndsTheSession() {
            open()
            click("Start")
            Workspace.advanceSeconds(60)
            root.view.destroy()
            wait(0)
            Workspace.advanceSeconds(3000)
            compare(Workspace.told(), [])
            open()
            shows("25:00, Ready")
        }
    }
}
