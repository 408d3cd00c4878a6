import QtQuick
import QtTest
import Orvel.DesignSystem

Item {
    width: 900
    height: 600

    OVTextField { id: outside }

    OVDialog {
        id: dialog
        title: "Delete deck"
        message: "It cannot be brought back."
        acceptText: "Delete"
        rejectText: "Cancel"
        destructive: true
    }

    OVDialog {
        id: cautious
        cautious: true
        rejectText: "Cancel"
        title: "Reset everything"
    }

    OVSheet {
        id: sheet
        title: "Keyboard shortcuts"
        OVTextField { id: first; focus: true }
        OVTextField { id: second }
    }

    OVSheet {
        id: tall
        title: "Long"
        Item { width: 100; height: 2000 }
    }

    OVToast { id: toast }

    SignalSpy { id: accepted; target: dialog; signalName: "accepted" }
    SignalSpy { id: rejected; target: dialog; signalName: "rejected" }
    SignalSpy { id: undone; target: toast; signalName: "actionTriggered" }

    TestCase {
        name: "Sheets"
        when: windowShown

        function init() {
            accepted.clear()
            rejected.clear()
            outside.forceActiveFocus(Qt.TabFocusReason)
        }

        function test_dialogByKeys_data() {
            return [
                { tag: "return", key: Qt.Key_Return, accepted: 1, rejected: 0 },
                { tag: "escape", key: Qt.Key_Escape, accepted: 0, rejected: 1 }
            ]
        }

        function test_dialogByKeys(data) {
            dialog.open()
            tryCompare(dialog, "opened", true)
            keyClick(data.key)
            compare(accepted.count, data.accepted)
            compare(rejected.count, data.rejected)
            tryCompare(dialog, "visible", false)
            verify(outside.activeFocus)
        }

        function test_cautiousDialogTakesNothingByReturn() {
            let count = 0
            cautious.accepted.connect(() => ++count)
            for (const modifier of [Qt.ControlModifier, Qt.NoModifier]) {
                cautious.open()
                tryCompare(cautious, "opened", true)
                keyClick(Qt.Key_Return, modifier)
                if (modifier === Qt.ControlModifier)
                    keyClick(Qt.Key_Escape)
                tryCompare(cautious, "visible", false)
            }
            compare(count, 0)
        }

        function test_sheetKeepsTheFocusAndReturnsIt() {
            sheet.open()
            tryCompare(sheet, "opened", true)
            verify(first.activeFocus)
            for (let i = 0; i < 8; ++i) {
                keyClick(Qt.Key_Tab)
                verify(!outside.activeFocus)
            }
            for (let i = 0; i < 8; ++i) {
                keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
                verify(!outside.activeFocus)
            }
            second.forceActiveFocus()
            keyClick(Qt.Key_Escape)
            tryCompare(sheet, "visible", false)
            verify(outside.activeFocus)
        }

        function test_sheetFitsTheWindow() {
            tall.open()
            tryCompare(tall, "opened", true)
            verify(tall.y >= 0)
            verify(tall.y + tall.height <= 600)
            tall.close()
            tryCompare(tall, "visible", false)
        }

        function test_laterToastReplacesTheEarlier() {
            toast.show("Copied")
            tryCompare(toast, "opened", true)
            toast.show("Task deleted", "Undo")
            compare(toast.text, "Task deleted")
            verify(outside.activeFocus)
            undone.clear()
            mouseClick(findChild(toast.contentItem, "action"))
            compare(undone.count, 1)
            tryCompare(toast, "visible", false)
        }

        function test_toastWithAnActionIsNotInTheWay() {
            toast.show("Task deleted", "Undo")
            compare(toast.duration, 6000)
            tryCompare(toast, "opened", true)
            outside.forceActiveFocus(Qt.TabFocusReason)
            const action = findChild(toast.contentItem, "action")
            for (let i = 0; i < 4; ++i) {
                keyClick(Qt.Key_Tab)
                verify(!action.activeFocus)
            }
            keyClick(Qt.Key_Escape)
            verify(toast.visible)

            toast.duration = 300
            toast.show("Task deleted", "Undo")
            mouseMove(action, 5, 5)
            wait(600)
            verify(toast.opened)
            mouseMove(outside, 1, 1)
            tryCompare(toast, "visible", false)
            toast.show("Copied")
            compare(toast.actionText, "")
            toast.close()
            tryCompare(toast, "visible", false)
        }
    }
}
