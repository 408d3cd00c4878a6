import QtQuick
import QtTest
import Orvel.DesignSystem

Item {
    id: window
    width: 900
    height: 600

    Column {
        spacing: 8
        OVTextField { id: field; placeholderText: "Title" }
        OVSearchField { id: search }
        OVField { id: labelled; label: "Name"; error: "Cannot be empty" }
        OVTextField { id: storeField; storeBacked: true; text: "kept" }
        OVTextArea { id: storeArea; storeBacked: true; text: "kept"; width: 300 }
        OVTextArea { id: area; placeholderText: "Notes"; width: 300; maximumLines: 4 }
        OVSwitch { id: toggle; text: "Glass" }
        OVCheckBox { id: box; text: "Done" }
        OVSegmentedControl { id: segments; model: ["low", "medium", "high"]; currentIndex: 1; onActivated: index => currentIndex = index }
        OVColorSwatch { id: swatch; color: "red"; text: "Red"; chosen: true }
    }

    SignalSpy { id: activated; target: segments; signalName: "activated" }

    TestCase {
        name: "Fields"
        when: windowShown

        function menuOf(item) {
            for (let i = 0; i < item.children.length; ++i) {
                if (item.children[i] instanceof OVContextMenuArea)
                    return item.children[i].openMenu
            }
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function test_rightClickMenuKeepsTheSelection() {
            field.text = "paper"
            field.forceActiveFocus()
            field.selectAll()
            mouseClick(field, 30, 18, Qt.RightButton)
            const menu = menuOf(field)
            tryCompare(menu, "opened", true)
            compare(field.selectedText, "paper")
            menu.itemAt(4).triggered()
            menu.close()
            tryCompare(menu, "visible", false)
            verify(field.activeFocus)
            menu.itemAt(3).triggered()
            compare(field.text, "")
            menu.itemAt(5).triggered()
            compare(field.text, "paper")
            menu.itemAt(0).triggered()
            compare(field.text, "")
        }

        function test_undoKeysOfTheStore_data() {
            return [{ tag: "field", item: storeField, input: storeField }, { tag: "area", item: storeArea, input: storeArea.input }]
        }
        function test_undoKeysOfTheStore(data) {
            let asked = ""
            data.item.undoRequested.connect(() => asked += "u")
            data.item.redoRequested.connect(() => asked += "r")
            data.input.forceActiveFocus()
            keyClick(Qt.Key_End)
            type("x")
            compare(data.input.text, "keptx")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            keyClick(Qt.Key_Y, Qt.ControlModifier)
            compare(asked, "urr")
            compare(data.input.text, "keptx")
            keyClick(Qt.Key_A, Qt.ControlModifier)
            compare(data.input.selectedText, "keptx")
        }

        function test_otherFieldsKeepTheirOwnUndo() {
            field.text = ""
            field.forceActiveFocus()
            type("ab")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(field.text, "")
        }

        function test_menuKeyOpensTheMenu() {
            area.text = ""
            area.input.forceActiveFocus()
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            const menu = menuOf(area)
            tryCompare(menu, "opened", true)
            compare(menu.itemAt(7).enabled, false)
            keyClick(Qt.Key_Escape)
            tryCompare(menu, "visible", false)
            verify(area.input.activeFocus)
        }

        function test_readOnlyFieldsOnlyGive() {
            field.text = "paper"
            field.readOnly = true
            search.forceActiveFocus()
            field.selectAll()
            mouseClick(field, 30, 18, Qt.RightButton)
            const menu = menuOf(field)
            tryCompare(menu, "opened", true)
            compare(menu.itemAt(3).enabled, false)
            compare(menu.itemAt(4).enabled, true)
            compare(menu.itemAt(5).enabled, false)
            menu.close()
            tryCompare(menu, "visible", false)
            verify(field.activeFocus)
            field.readOnly = false
        }

        function test_ringOnlyForTheKeyboard() {
            mouseClick(field)
            verify(field.activeFocus)
            compare(field.visualFocus, false)
            keyClick(Qt.Key_Tab)
            verify(search.activeFocus)
            compare(search.visualFocus, true)
        }

        function test_escapeEmptiesTheSearch() {
            search.forceActiveFocus()
            type("tea")
            compare(search.text, "tea")
            keyClick(Qt.Key_Escape)
            compare(search.text, "")
        }

        function test_clearButtonEmptiesTheSearch() {
            search.text = "tea"
            mouseClick(search, search.width - 18, search.height / 2)
            compare(search.text, "")
        }

        function test_areaGrowsThenScrolls() {
            area.text = ""
            const low = area.implicitHeight
            area.text = "1\n2\n3\n4"
            verify(area.implicitHeight > low)
            const high = area.implicitHeight
            area.text = "1\n2\n3\n4\n5\n6\n7"
            compare(area.implicitHeight, high)
        }

        function test_spacingIsNoStepToUndo() {
            area.text = "one\ntwo"
            area.font.pixelSize += 4
            compare(area.input.canUndo, false)
            area.font.pixelSize -= 4
            verify(area.input.contentHeight >= 2 * area.lineHeight - 4)
            area.input.forceActiveFocus()
            area.input.cursorPosition = area.input.length
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_X)
            compare(area.text, "one\ntwo\nx")
            verify(area.input.contentHeight >= 3 * area.lineHeight - 4)
            while (area.input.canUndo)
                area.input.undo()
            compare(area.text, "one\ntwo")
            verify(area.input.contentHeight >= 2 * area.lineHeight - 4)
        }

        function test_tabLeavesTheArea() {
            area.text = ""
            area.input.forceActiveFocus()
            keyClick(Qt.Key_Tab)
            verify(toggle.activeFocus)
            verify(toggle.visualFocus)
            compare(area.text, "")
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
            verify(area.input.activeFocus)
        }

        function test_spaceTurnsSwitchAndCheckBox() {
            toggle.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            compare(toggle.checked, true)
            box.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            compare(box.checked, true)
        }

        function test_arrowsMoveTheSegment() {
            segments.forceActiveFocus(Qt.TabFocusReason)
            activated.clear()
            keyClick(Qt.Key_Right)
            compare(segments.currentIndex, 2)
            keyClick(Qt.Key_Right)
            compare(segments.currentIndex, 2)
            compare(activated.count, 1)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            compare(segments.currentIndex, 0)
        }

        function test_namesAndRoles() {
            compare(field.Accessible.name, "Title")
            compare(labelled.input.Accessible.name, "Name")
            compare(labelled.input.Accessible.description, "Cannot be empty")
            compare(area.input.Accessible.name, "Notes")
            compare(toggle.Accessible.name, "Glass")
            compare(box.Accessible.name, "Done")
            compare(swatch.Accessible.name, "Red")
            compare(swatch.Accessible.checked, true)
        }
    }
}
