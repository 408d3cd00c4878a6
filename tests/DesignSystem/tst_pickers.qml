import QtQuick
import QtTest
import Orvel.DesignSystem

Item {
    width: 900
    height: 600

    OVDatePicker {
        id: picker
        now: new Date(2026, 10, 22, 9, 30)
        onChosen: moment => value = moment
    }

    OVDateField {
        now: new Date(2026, 10, 22, 9, 30)
        id: field
        x: 500
        y: 540
        name: "Due date"
        showsTime: true
        clearable: true
        value: new Date(2026, 10, 22, 9, 30)
        onEdited: moment => value = moment
    }

    OVTimePicker {
        id: time
        x: 300
        value: new Date(2026, 10, 22, 9, 30)
        onEdited: moment => value = moment
    }

    OVComboBox {
        id: combo
        y: 400
        width: 200
        model: ["Page", "Task", "Note"]
        Accessible.name: "Kind"
    }

    SignalSpy { id: edited; target: field; signalName: "edited" }
    SignalSpy { id: activated; target: combo; signalName: "activated" }

    TestCase {
        name: "Pickers"
        when: windowShown

        function popupOf(item) {
            return item.popup
        }

        function grid(item) {
            return findChild(item, "days")
        }

        function test_dayByKeys_data() {
            return [
                { tag: "day", keys: [Qt.Key_Right], day: new Date(2026, 10, 23, 9, 30) },
                { tag: "week", keys: [Qt.Key_Down, Qt.Key_Down], day: new Date(2026, 11, 6, 9, 30) },
                { tag: "month", keys: [Qt.Key_PageDown, Qt.Key_PageDown], day: new Date(2027, 0, 22, 9, 30) },
                { tag: "back", keys: [Qt.Key_PageUp, Qt.Key_Left, Qt.Key_Up], day: new Date(2026, 9, 14, 9, 30) },
                { tag: "ends", keys: [Qt.Key_End], day: new Date(2026, 10, 28, 9, 30) },
                { tag: "start", keys: [Qt.Key_Right, Qt.Key_Home], day: new Date(2026, 10, 22, 9, 30) }
            ]
        }

        function test_dayByKeys(data) {
            picker.value = new Date(2026, 10, 22, 9, 30)
            grid(picker).forceActiveFocus(Qt.TabFocusReason)
            for (const key of data.keys)
                keyClick(key)
            compare(picker.value, new Date(2026, 10, 22, 9, 30))
            keyClick(Qt.Key_Return)
            compare(picker.value, data.day)
        }

        function test_dayByMouse() {
            picker.value = new Date(2026, 10, 22, 9, 30)
            mouseClick(grid(picker).contentItem.children[0])
            compare(picker.value, new Date(2026, 10, 1, 9, 30))
        }

        function test_fieldOpensItsPickerAbove() {
            field.value = new Date(2026, 10, 22, 9, 30)
            field.forceActiveFocus(Qt.TabFocusReason)
            edited.clear()
            keyClick(Qt.Key_Return)
            tryCompare(popupOf(field), "opened", true)
            const corner = popupOf(field).contentItem.mapToItem(null, 0, 0)
            verify(corner.y >= 0)
            verify(corner.y + popupOf(field).contentItem.height <= 600)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Return)
            compare(field.value, new Date(2026, 10, 23, 9, 30))
            compare(edited.count, 1)
            keyClick(Qt.Key_Escape)
            tryCompare(popupOf(field), "visible", false)
            verify(field.activeFocus)
            compare(field.Accessible.name, "Due date: Nov 23, 2026, 09:30")
        }

        function test_timeByKeysAndWheel() {
            time.value = new Date(2026, 10, 22, 23, 30)
            const hours = findChild(time, "hours")
            hours.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Up)
            compare(time.value, new Date(2026, 10, 22, 0, 30))
            keyClick(Qt.Key_1)
            keyClick(Qt.Key_4)
            keyClick(Qt.Key_0)
            keyClick(Qt.Key_5)
            compare(time.value, new Date(2026, 10, 22, 14, 5))
            mouseWheel(hours, 10, 40, 0, 120)
            compare(time.value, new Date(2026, 10, 22, 15, 5))
        }

        function test_comboByKeys() {
            combo.currentIndex = 0
            combo.forceActiveFocus(Qt.TabFocusReason)
            activated.clear()
            keyClick(Qt.Key_Space)
            tryCompare(combo.popup, "opened", true)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(combo.currentIndex, 2)
            compare(activated.count, 1)
            tryCompare(combo.popup, "visible", false)
            keyClick(Qt.Key_Return)
            tryCompare(combo.popup, "opened", true)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Escape)
            tryCompare(combo.popup, "visible", false)
            compare(combo.currentIndex, 2)
            verify(combo.activeFocus)
        }

        function test_names() {
            compare(combo.Accessible.name, "Kind")
            picker.value = new Date(2026, 10, 22, 9, 30)
            compare(grid(picker).Accessible.name, "Sunday, 22 November 2026")
        }
    }
}
