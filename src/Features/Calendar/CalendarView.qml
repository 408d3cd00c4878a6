pragma ComponentBehavior: Bound

import QtQuick
import Qt.labs.qmlmodels
import Orvel.Calendar
import Orvel.DesignSystem
import Orvel.Session

/// The calendar: events, and the tasks that are due.
FocusScope {
    id: root

    /// Shows other days. The focus stays in them, and a list shows its new rows at once.
    function turn(change: var) {
        const inside = body.activeFocus || (list.currentItem?.activeFocus ?? false)
        const reason = list.keys.ringShown || (body.days?.focusReason === Qt.TabFocusReason) ? Qt.TabFocusReason
                                                                                             : Qt.MouseFocusReason
        if (!calendar.showsGrid)
            list.model = null
        change()
        if (!calendar.showsGrid || list.count > 0)
            list.model = null
        list.model = Qt.binding(() => calendar.rows)
        if (inside)
            focusDays(reason)
        showSelected()
    }

    /// Puts the caret into the form, which may be above what is shown.
    function focusForm() {
        list.contentY = list.originY
        header.focusForm()
    }

    function focusDays(reason: int) {
        if (calendar.showsGrid || calendar.isEmpty)
            body.days.forceActiveFocus(reason)
        else
            list.keys.focus(list.keys.stopFrom(0, 1), reason)
    }

    /// Scrolls to the selected day of a grid that is higher than the window, if the keyboard is there.
    function showSelected() {
        const cell = (body.days as CalendarGrid)?.selectedItem() ?? null
        if (!cell || !body.activeFocus)
            return
        const top = cell.mapToItem(list.contentItem, 0, 0).y - Theme.space24
        const bottom = top + cell.height + 2 * Theme.space24
        if (top < list.contentY)
            list.contentY = Math.max(list.originY, top)
        else if (bottom > list.contentY + list.height)
            list.contentY = Math.min(bottom - list.height, list.originY + list.contentHeight - list.height)
    }

    function remove(row: var) {
        const reason = list.keys.ringShown ? Qt.TabFocusReason : Qt.MouseFocusReason
        const after = list.keys.stopFrom(row.index + 1, 1)
        const next = after < 0 ? list.keys.stopFrom(row.index - 1, -1) : after
        const inside = row.focus
        if (inside && next >= 0)
            list.keys.focus(next, reason)
        calendar.deleteEvent(row.eventID)
        // Else the next key may still meet the row.
        list.forceLayout()
        if (inside && next < 0)
            focusDays(reason)
    }

    Keys.onPressed: event => {
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return
        const inDay = calendar.mode === "day"
        event.accepted = true
        switch (event.key) {
        case Qt.Key_PageUp: return turn(() => calendar.step(-1))
        case Qt.Key_PageDown: return turn(() => calendar.step(1))
        case Qt.Key_Home:
        case Qt.Key_T: return turn(() => calendar.goToToday())
        case Qt.Key_M: return turn(() => calendar.mode = "month")
        case Qt.Key_W: return turn(() => calendar.mode = "week")
        case Qt.Key_D: return turn(() => calendar.mode = "day")
        case Qt.Key_A: return turn(() => calendar.mode = "agenda")
        case Qt.Key_Left: if (inDay) return turn(() => calendar.step(-1)); break
        case Qt.Key_Right: if (inDay) return turn(() => calendar.step(1)); break
        }
        event.accepted = false
    }

    CalendarViewModel {
        id: calendar
        active: root.visible
        session: Orvel
        onRevealed: row => {
            if (row < 0)
                root.focusDays(Qt.TabFocusReason)
            else
                list.keys.focus(row, Qt.TabFocusReason)
        }
    }

    CalendarList {
        id: list
        anchors.fill: parent
        focus: true
        viewModel: calendar

        above: FocusScope {
            focus: true
            implicitHeight: body.y + body.height

            CalendarHeader {
                id: header
                interchange: drop.interchange
                viewModel: calendar
                width: parent.width
                onModeRequested: raw => root.turn(() => calendar.mode = raw)
                onStepRequested: delta => root.turn(() => calendar.step(delta))
                onTodayRequested: root.turn(() => calendar.goToToday())
            }

            FocusScope {
                id: body

                readonly property Item days: (grid.item ?? empty.item) as Item

                focus: true
                height: grid.implicitHeight + empty.implicitHeight
                width: parent.width
                y: header.height

                OVLazyLoader {
                    id: grid
                    active: calendar.showsGrid
                    focus: active
                    width: parent.width

                    sourceComponent: CalendarGrid {
                        viewHeight: list.height - header.height - (list.footerItem?.height ?? 0)
                        chipCount: calendar.mode === "month" ? 3 : 6
                        focus: true
                        model: calendar.cells
                        selectedIndex: calendar.selectedCell
                        selectedText: calendar.selectedText
                        weekdays: calendar.mode === "month" ? calendar.weekdaySymbols : []
                        onAddRequested: root.focusForm()
                        onMoved: days => root.turn(() => calendar.moveSelection(days))
                        onOpenRequested: root.turn(() => calendar.openSelected())
                        onTapped: index => root.turn(() => calendar.selectCell(index))

                        CalendarWheel {
                            view: list
                            onStepped: delta => root.turn(() => calendar.step(delta))
                        }
                    }
                }

                OVLazyLoader {
                    id: empty
                    active: !calendar.showsGrid && calendar.isEmpty
                    focus: active
                    width: parent.width

                    sourceComponent: CalendarEmpty {
                        focus: true
                        message: calendar.mode === "agenda" ? qsTr("Add an event above or give a task a due date.") : ""
                        title: calendar.mode === "agenda" ? qsTr("Nothing in the next 30 days")
                                                          : qsTr("Nothing scheduled for this day.")
                        onAddRequested: root.focusForm()
                    }
                }
            }
        }
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "date"

                delegate: CalendarDateRow { }
            }

            DelegateChoice {
                delegate: CalendarItemRow {
                    id: row
                    onAddRequested: root.focusForm()
                    onDeleteRequested: root.remove(row)
                    onTaskRequested: Orvel.ui.select("tasks")
                }
            }
        }
    }

    CalendarDrop {
        id: drop
        anchors.fill: parent
    }
}
