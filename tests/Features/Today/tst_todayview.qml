import QtQuick
import Orvel.Session
import Orvel.Testing
import Orvel.Today

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property TodayView view

    width: 1000
    height: 640

    Component {
        id: screen

        TodayView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "TodayView"
        scene: root.view

        function init() {
            Workspace.reset()
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function tabTo(name) {
            for (let i = 0; i < 40; ++i) {
                keyClick(Qt.Key_Tab)
                if (focused().Accessible.name === name)
                    return focused()
            }
            fail("Tab does not lead to " + name)
        }

        function test_typingAddsATask() {
            open()
            compare(focused().Accessible.name, "Add a task")
            type("one")
            keyClick(Qt.Key_Return)
            type("two")
            keyClick(Qt.Key_Return)
            compare(saved().tasks.map(task => task.title).join(), "one,two")
            compare(saved().tasks[0].dueDate, undefined)
            compare(focused().Accessible.name, "Add a task")
        }

        function test_quickActions_data() {
            return [
                { tag: "New page", kind: "page" }, { tag: "New note", kind: "note" },
                { tag: "Start focus", place: "focus" }, { tag: "New event", place: "calendar" }
            ]
        }

        function test_quickActions(data) {
            open()
            mouseClick(find(data.tag))
            if (data.place)
                return compare(Orvel.ui.selection.text, data.place)
            compare(saved().pages.length, 1)
            compare(saved().pages[0].kind, data.kind)
            compare(saved().pages[0].title, "Untitled")
            compare(Orvel.ui.selection.text, "page/" + saved().pages[0].id)
        }

        function test_quickNoteByKeys() {
            open()
            const area = tabTo("Write something down")
            const place = area.mapToItem(root.view, 0, 0).y
            verify(place >= 0 && place < root.height, "the field is in view")
            type("first")
            keyClick(Qt.Key_Return)
            type("second")
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            compare(saved().pages.length, 1)
            compare(saved().pages[0].title, "first")
            compare(saved().pages[0].content[0].text, "first\nsecond")
            compare(focused(), area)
            compare(area.text, "")
            type("x")
            mouseClick(find("Save as note"))
            compare(saved().pages[1].title, "x")
        }

        function test_emptyDay() {
            open()
            for (const text of ["0 tasks · 0 events today", "Nothing scheduled today.", "No active projects.",
                                "No tasks due today  -  add one above.", "Pages you open will appear here.",
                                "0 of 0 tasks complete"])
                verify(find(text), text)
        }
    }
}
