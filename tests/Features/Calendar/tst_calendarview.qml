import QtQuick
import Orvel.Calendar
import Orvel.Session
import Orvel.Testing

/// The real screen, worked with real mouse and key events; what counts in the end is what stands in the file. It is
/// Friday, March 13, 2026.
Item {
    id: root

    property CalendarView view

    width: 1000
    height: 800

    Component {
        id: screen

        CalendarView {
            anchors.fill: parent
            focus: true
        }
    }

    Setting {
        id: textSize
        field: "theme.fontScale"
        session: Orvel
    }

    ScreenTestCase {
        id: test

        name: "CalendarView"
        scene: root.view

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
            root.height = 800
            root.width = 1000
        }

        function open() {
            root.view = createTemporaryObject(screen, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function focusedName() {
            return focused()?.Accessible.name ?? ""
        }

        function saved() {
            return JSON.parse(Workspace.saved()).events
        }

        function list() {
            return root.view.children[0]
        }

        function test_addsByKeysAlone() {
            open()
            compare(focusedName(), "Friday, March 13, 2026")
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down)
            verify(focused().visualFocus)
            compare(focusedName(), "Saturday, March 21, 2026")
            keyClick(Qt.Key_Return)
            compare(focusedName(), "Event title")
            verify(find("Add on Mar 21"))
            type("buy  milk")
            keyClick(Qt.Key_Return)
            compare(saved().length, 1)
            compare(saved()[0].title, "buy  milk")
            compare(saved()[0].date, "2026-03-21T12:00:00Z")
            compare(saved()[0].kind, "event")
            compare(saved()[0].timeMinutes, undefined)
            compare(focusedName(), "Event title")
            type("call")
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Space)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Return, Qt.ControlModifier)
            compare(saved()[1].kind, "deadline")
            compare(saved()[1].timeMinutes, 570)
            verify(!find("Time").checked)
            keyClick(Qt.Key_Return)
            compare(saved().length, 2)
            for (const stops of [1, 2]) {
                type("again")
                for (let i = 0; i < stops; ++i) {
                    keyClick(Qt.Key_Tab)
                    if (i === 0)
                        keyClick(Qt.Key_Space)
                }
                keyClick(Qt.Key_Return, Qt.ControlModifier)
                compare(saved().length, 2 + stops)
                compare(focusedName(), "Event title")
            }
        }

        function test_goesThroughTheDaysByKeys() {
            open()
            keyClick(Qt.Key_PageDown)
            verify(find("April 2026"))
            compare(focusedName(), "April 2026")
            keyClick(Qt.Key_Up)
            compare(focusedName(), "Monday, April 13, 2026")
            for (let week = 0; week < 3; ++week)
                keyClick(Qt.Key_Down)
            verify(find("May 2026"))
            keyClick(Qt.Key_W)
            verify(find("Week of May 3"))
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            verify(find("Week of Apr 26"))
            keyClick(Qt.Key_D)
            verify(find("Saturday, May 2, 2026"))
            compare(focusedName(), "Nothing scheduled for this day.")
            keyClick(Qt.Key_Right)
            verify(find("Sunday, May 3, 2026"))
            keyClick(Qt.Key_PageUp)
            keyClick(Qt.Key_PageUp)
            verify(find("Friday, May 1, 2026"))
            keyClick(Qt.Key_Home)
            verify(find("Friday, March 13, 2026"))
            keyClick(Qt.Key_A)
            compare(focusedName(), "Nothing in the next 30 days")
            verify(find("Add an event above or give a task a due date."))
            keyClick(Qt.Key_M)
            compare(focusedName(), "Friday, March 13, 2026")
        }

        function test_goesThroughTheDaysByMouse() {
            for (let i = 0; i < 5; ++i)
                Workspace.addEvent("e" + i, 1)
            open()
            click("Next")
            verify(find("April 2026"))
            click("Today")
            click("Previous")
            verify(find("February 2026"))
            click("Today")
            // Two clicks of a test are never near enough for a double click.
            const cell = find("Tuesday, March 24, 2026")
            mouseClick(cell)
            cell.doubleTapped()
            compare(focusedName(), "Event title")
            verify(find("Add on Mar 24"))
            click("2 more")
            verify(find("Saturday, March 14, 2026"))
            tryVerify(() => find("e4, Event"))
            click("week")
            tryVerify(() => find("Saturday, March 14, 2026, 5 items"))
            verify(find("Week of Mar 8"))
        }

        function test_turnsMonthsByTheWheel() {
            open()
            const cell = find("Tuesday, March 24, 2026")
            mouseWheel(cell, 9, 9, 0, -120)
            verify(find("April 2026"))
            mouseWheel(find("Tuesday, April 14, 2026"), 9, 9, 0, 60)
            verify(find("April 2026"))
            mouseWheel(find("Tuesday, April 14, 2026"), 9, 9, 0, 60)
            verify(find("March 2026"))
            mouseWheel(cell, 9, 9, -120, 0)
            verify(find("April 2026"))

            // A window that is too low scrolls first.
            root.height = 500
            waitForRendering(root.view)
            const top = list().contentY
            mouseWheel(find("Tuesday, April 7, 2026"), 9, 9, 0, -120)
            verify(find("April 2026"))
            tryVerify(() => list().contentY > top)
        }

        function test_keepsTheSelectedDayInView() {
            root.height = 500
            open()
            for (let week = 0; week < 2; ++week)
                keyClick(Qt.Key_Down)
            const cell = find("Friday, March 27, 2026", focused())
            const bottom = cell.mapToItem(root.view, 0, cell.height).y
            verify(bottom <= root.height, bottom)
            verify(list().contentY > list().originY)
            keyClick(Qt.Key_Return)
            compare(focusedName(), "Event title")
            verify(focused().mapToItem(root.view, 0, 0).y >= 0)
        }

        function test_deletesAndUndoes() {
            for (const title of ["a", "b", "c"])
                Workspace.addEvent(title)
            Workspace.addTask("task", "todo", "medium", 1)
            open()
            keyClick(Qt.Key_Space)
            compare(focusedName(), "a, Event")
            verify(focused().visualFocus)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Delete)
            compare(saved().map(event => event.title).join(), "a,c")
            compare(focusedName(), "c, Event")
            keyClick(Qt.Key_Down)
            compare(focusedName(), "task, Task")
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Delete)
            mouseMove(find("a, Event"))
            click("Delete: a")
            compare(saved().length, 0)
            compare(JSON.parse(Workspace.saved()).tasks.length, 1)
            keyClick(Qt.Key_Right)
            compare(focusedName(), "Nothing scheduled for this day.")
            keyClick(Qt.Key_Left)
            compare(focusedName(), "task, Task")
        }

        function test_deletingTheLastEventKeepsTheFocus() {
            Workspace.addEvent("only", 0, 600)
            open()
            keyClick(Qt.Key_D)
            compare(focusedName(), "10:00, only, Event")
            keyClick(Qt.Key_Backspace)
            compare(saved().length, 0)
            compare(focusedName(), "Nothing scheduled for this day.")
            keyClick(Qt.Key_Return)
            compare(focusedName(), "Event title")
        }

        function test_agendaStopsAtItems() {
            Workspace.addEvent("a")
            Workspace.addEvent("b", 3)
            open()
            keyClick(Qt.Key_A)
            compare(focusedName(), "a, Event")
            keyClick(Qt.Key_Down)
            compare(focusedName(), "b, Event")
            keyClick(Qt.Key_Delete)
            compare(focusedName(), "a, Event")
        }

        function test_tabOrder() {
            Workspace.addEvent("a")
            open()
            const stops = []
            for (let i = 0; i < 9; ++i) {
                stops.push(focusedName())
                keyClick(Qt.Key_Tab)
            }
            compare(stops.join("|"), "Friday, March 13, 2026, 1 item|Previous|Today|Next|More|month|Event title|Time|Kind")
        }

        function test_assistiveTechnology() {
            Workspace.addEvent("a")
            open()
            Assistive.begin()
            const seen = Assistive.describeAll(root.Window.window)
            for (const what of ["Heading March 2026", "Grouping Mode", "RadioButton month checked", "PageTabList Kind",
                                "Table Friday, March 13, 2026, 1 item", "Button Sunday, March 1, 2026"])
                verify(seen.includes(what), what)
            Assistive.press(find("Sunday, March 1, 2026"))
            verify(find("Add on Mar 1"))
        }

        function overlay() {
            return root.Window.contentItem.parent ?? root.Window.contentItem
        }

        function test_showsAFileBeforeItIsAdded() {
            open()
            Drop.enter(root.Window.window, Qt.point(300, 300), [Qt.resolvedUrl("elsewhere.ics")])
            tryVerify(() => find("Drop a calendar file to import its events"))
            Drop.drop(root.Window.window, Qt.point(300, 300))
            tryVerify(() => find("New events: 110", overlay()))
            verify(find("Single events made of these: 107", overlay()))
            verify(find("Guests are not kept (1)", overlay()))
            compare(saved().length, 0)
            tryCompare(focused(), "text", "Add to calendar")
            keyClick(Qt.Key_Return)
            compare(saved().length, 110)
            tryVerify(() => focusedName().startsWith("Friday, March 13"))
            verify(!find("Drop a calendar file to import its events"))
            Drop.enter(root.Window.window, Qt.point(300, 300), [Qt.resolvedUrl("elsewhere.ics")])
            Drop.drop(root.Window.window, Qt.point(300, 300))
            tryVerify(() => find("Already in your calendar: 110", overlay()))
            verify(find("Everything in this file is in your calendar already.", overlay()))
            keyClick(Qt.Key_Escape)
            tryVerify(() => !find("Already in your calendar: 110", overlay()))
            Orvel.undo.undo()
            compare(saved().length, 0)
        }

        function test_hugeTextInASmallWindowIsReadable() {
            for (let i = 0; i < 30; ++i)
                Workspace.addEvent("e" + i, 0, 524 + i)
            textSize.set(1.4)
            root.width = 540
            root.height = 600
            open()
            const day = find("Friday, March 13, 2026, 30 items")
            const more = find("27 more", day)
            verify(!more.truncated)
            keyClick(Qt.Key_W)
            tryVerify(() => find("Week of Mar 8") && !find("Week of Mar 8").truncated)
            const number = find("13 Fri", root.view)
            verify(!number.truncated)
            compare(find("Week of Mar 8").lineCount, 1)
            keyClick(Qt.Key_D)
            tryVerify(() => find("Friday, March 13, 2026").lineCount > 1)
            verify(!find("Friday, March 13, 2026").truncated)
            verify(!find("08:44").truncated)
        }

        function test_midnight() {
            open()
            Workspace.advanceHours(24)
            tryVerify(() => find("Add on Mar 14"))
        }
    }
}
