import QtQuick
import QtTest
import Orvel.DesignSystem

TestCase {
    id: test

    function ringOf(control) {
        for (let i = 0; i < control.children.length; ++i)
            if (control.children[i].targetRadius !== undefined)
                return control.children[i]
        return null
    }

    name: "Buttons"
    visible: true
    when: windowShown
    width: 600
    height: 300

    Column {
        spacing: 8

        OVPrimaryButton { id: primary; text: "Add" }
        OVSecondaryButton { id: secondary; text: "Cancel" }
        OVIconButton { id: icon; symbol: "trash"; text: "Delete" }
        OVChip { id: chip; checkable: true; text: "Open" }
        OVPressable { id: pressable; text: "Row"; implicitHeight: 30; implicitWidth: 100 }
    }

    SignalSpy { id: clicks; signalName: "clicked" }

    function buttons() {
        return [primary, secondary, icon, chip, pressable]
    }

    function cleanup() {
        for (const button of buttons())
            button.enabled = true
        chip.checked = false
        test.forceActiveFocus()
    }

    function test_keysAndPointerActivate() {
        for (const button of buttons()) {
            clicks.target = button
            clicks.clear()
            button.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            compare(clicks.count, 1, button.text + " by Space")
            keyClick(Qt.Key_Return)
            compare(clicks.count, 2, button.text + " by Return")
            mouseClick(button)
            compare(clicks.count, 3, button.text + " by the pointer")

            button.enabled = false
            mouseClick(button)
            compare(clicks.count, 3, button.text + " disabled")
            compare(button.opacity, Theme.disabledOpacity)
        }
    }

    function test_returnTogglesAChipOnce() {
        chip.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Return)
        verify(chip.checked)
        keyClick(Qt.Key_Space)
        verify(!chip.checked)
    }

    function test_theRingShowsForTheKeyboardOnly() {
        for (const button of buttons()) {
            button.forceActiveFocus(Qt.TabFocusReason)
            const ring = ringOf(button)
            verify(ring?.visible, button.text)
            test.forceActiveFocus()
            mouseClick(button)
            verify(!ring.visible, button.text)
        }
    }

    function test_tabGoesThroughAllOfThem() {
        primary.forceActiveFocus(Qt.TabFocusReason)
        for (const next of buttons().slice(1)) {
            keyClick(Qt.Key_Tab)
            verify(next.activeFocus, next.text)
        }
    }

    function test_everyButtonHasAName() {
        for (const button of buttons())
            compare(button.Accessible.name, button.text)
        compare(icon.toolTip, "Delete")
    }

    function test_pressingTakesTheToolTipAway() {
        mouseMove(icon, 10, 10)
        tryVerify(() => icon.tip?.item?.opened ?? false)
        const tip = icon.tip
        compare(tip.item.text, "Delete")
        mouseClick(icon)
        verify(icon.hovered)
        verify(!tip.shown)
        tryVerify(() => tip.item === null)
        // It shows again when the pointer comes back.
        mouseMove(test, 590, 290)
        tryVerify(() => !icon.hovered)
        mouseMove(icon, 10, 10)
        tryVerify(() => tip.shown)
    }
}
