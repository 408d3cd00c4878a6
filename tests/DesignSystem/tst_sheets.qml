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
    }
}
