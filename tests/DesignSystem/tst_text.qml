import QtQuick
import QtTest
import Orvel.DesignSystem

TestCase {
    id: test

    name: "Text"
    when: windowShown
    width: 400
    height: 300

    Row {
        OVText { id: label; text: "Plan the week 🧠" }
        OVIcon { id: icon; symbol: "checkmark.square" }
        OVIcon { id: unknown; symbol: "no.such.symbol" }
        OVFocusRing { shown: true }
        HoverWash { hovered: true }
    }

    function test_tokensAreWholePixels() {
        compare(Theme.sizeBody, 14)
        compare(Theme.screenPadding, 32)
        compare(label.font.pixelSize, Theme.sizeBody)
    }

    function test_iconsAreDrawn() {
        compare(icon.status, Image.Ready)
        compare(icon.paintedWidth, 16)
        compare(unknown.status, Image.Ready)
    }
}
